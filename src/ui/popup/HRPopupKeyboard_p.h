// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>

QT_BEGIN_NAMESPACE
class QKeyEvent;
class QQuickItem;
QT_END_NAMESPACE

namespace Hintreels {

class HRView;
class HRWidget;

/// Gives a popup's scene the keyboard, while the window of the host stays the active one and an
/// open menu stays open.
///
/// Neither the window system nor Qt Quick knows of it: items keep their `focus`, but none has the
/// active focus. Whoever has the keys hands them on, the scene is told which item has them
/// (setSceneFocus()), and so is assistive technology. The host may delete the popup whenever its
/// scene is called. GUI thread only.
class HRPopupKeyboard
{
public:
    ~HRPopupKeyboard();

    /// Whether the scene of a popup has the keyboard from here.
    bool isIn(const HRWidget &popup) const;

    /// Gives it to a popup, unless that has no view.
    void enter(const HRWidget &popup);

    /// Takes it back; does nothing where no scene has it.
    void leave();

    /// Hands a press or a release on to the scene that has the keyboard.
    void type(const QKeyEvent &event);

private:
    void followFocus();

    QPointer<HRView> m_view;
    QPointer<QQuickItem> m_item; // that has the keyboard
};

} // namespace Hintreels
