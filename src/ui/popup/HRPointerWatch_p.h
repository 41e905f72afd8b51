// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QPoint>

#include <functional>

namespace Hintreels {

/// Looks now and then where the pointer is, and tells when it is elsewhere than at the last look.
///
/// Qt reports moves only over the application's own windows. A pointer that leaves them straight
/// away would otherwise stay unnoticed.
class HRPointerWatch : public QObject
{
public:
    using Moved = std::function<void(const QPoint &position)>;

    explicit HRPointerWatch(Moved moved);

    /// @param position where the pointer is now, which tells nothing
    void start(const QPoint &position);
    void stop();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    Moved m_moved;
    QBasicTimer m_timer;
    QPoint m_lastPosition;
};

} // namespace Hintreels
