// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QPoint>

#include <functional>
#include <optional>

namespace Hintreels {

/// Looks now and then where the pointer is, and tells when it is elsewhere than at the last look.
///
/// Qt reports moves only over the application's own windows. A pointer that leaves them straight
/// away would otherwise stay unnoticed. On Wayland nobody knows where a pointer is that has left
/// them, and only leaving can be noticed, at once.
class HRPointerWatch : public QObject
{
public:
    /// A global position; nothing for a pointer that is nowhere.
    using Position = std::optional<QPoint>;
    using Moved = std::function<void(const Position &position)>;

    explicit HRPointerWatch(Moved moved);

    /// Where the pointer is now, also while nothing is watched.
    Position position() const;

    /// Tells of moves from now on.
    void start();
    void stop();

    /// On Wayland, notices that the pointer enters and leaves the application's windows.
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void look();

    Moved m_moved;
    QBasicTimer m_timer;
    Position m_lastPosition;
    bool m_isNowhere = false;
};

} // namespace Hintreels
