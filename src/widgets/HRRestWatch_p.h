// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <optional>

QT_BEGIN_NAMESPACE
class QKeyEvent;
class QMouseEvent;
QT_END_NAMESPACE

namespace Hintreels {

/// Lets tooltip events come after as long a rest of the pointer as the reader wants, whatever the
/// application's style says.
///
/// GUI thread only.
class HRRestWatch : public QObject
{
public:
    /// Milliseconds; desktopsDelay leaves the events alone. Asked once for a run of moves.
    using Delay = std::function<int()>;
    static constexpr int desktopsDelay = -1;

    /// Whether the reader holds Ctrl for a hint, also where the pointer has come before.
    using WaitsForCtrl = std::function<bool()>;

    HRRestWatch(Delay delay, WaitsForCtrl waitsForCtrl);

    /// Follows a move of the mouse that an object gets.
    void follow(QObject *watched, const QMouseEvent &event);

    /// Follows any other event that somebody gets.
    /// @return true for a tooltip event that comes too early: nobody may see it, since another one
    ///     follows
    bool holdsBack(const QEvent &event);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void followKey(const QKeyEvent &event);
    void restUnderPointer();
    void tell();

    Delay m_delay;
    WaitsForCtrl m_waitsForCtrl;
    std::optional<int> m_known; // what it said at the first of these moves
    QBasicTimer m_timer;
    QPointer<QWidget> m_widget; // that the pointer is over
    QPoint m_position; // in the widget
};

} // namespace Hintreels
