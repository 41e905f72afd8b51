// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QEvent;
class QMouseEvent;
class QObject;
class QWheelEvent;
QT_END_NAMESPACE

namespace Hintreels {

class HRWidget;

/// Gives a popup's view what the pointer does inside the popup while a menu is open.
///
/// An open menu, or the list of a combo box, gets all that the pointer does anywhere, and closes
/// for a press outside of it. GUI thread only.
class HRPopupInput
{
public:
    /// @param popup must outlive it
    explicit HRPopupInput(const HRWidget &popup);

    /// For events while a menu is open. Hands one that somebody gets on to the view, where it
    /// happens inside the popup, or began there. The host may delete the popup then, and this.
    /// @return true where nobody else may see the event
    bool take(const QObject &watched, const QEvent &event);

private:
    bool takePointer(const QMouseEvent &event);
    bool takeWheel(const QWheelEvent &event);
    void leave();

    const HRWidget &m_popup;
    bool m_isInside = false; ///< the view has been told of the pointer last
    bool m_isPressed = false; ///< a press inside the popup waits for its release
};

} // namespace Hintreels
