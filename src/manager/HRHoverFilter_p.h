// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>

#include <functional>

QT_BEGIN_NAMESPACE
class QEvent;
class QObject;
QT_END_NAMESPACE

namespace Hintreels {

class HRWidget;

/// Turns events of the application's objects into what the current popup does.
///
/// The host may delete popup and objects when it is called back. GUI thread only.
class HRHoverFilter
{
public:
    /// The current popup; null where there is none.
    using Popup = std::function<HRWidget *()>;

    /// Shows what belongs to an object; true where nobody else may see the event.
    using Show = std::function<bool(QObject *object, const QPoint &globalPos)>;

    HRHoverFilter(Popup popup, Show show);

    /// Handles an event that somebody gets; true where that is all that may happen to it.
    bool filter(QObject *watched, QEvent &event) const;

    /// Lets a visible popup know where the pointer is, in global coordinates.
    void followPointer(const QPoint &globalPos) const;

    /// Hides a visible popup, or activates one that stays open, for a button that was pressed or
    /// released outside of it; objects that are no widgets do not count.
    void followButton(const QObject *target) const;

private:
    void hidePopup() const;

    Popup m_popup;
    Show m_show;
};

} // namespace Hintreels
