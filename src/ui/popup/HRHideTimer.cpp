// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRHideTimer_p.h"

#include <QTimer>

#include <limits>
#include <utility>

namespace Hintreels {

HRQTimerClock::HRQTimerClock(QTimer *timer)
    : m_timer(timer)
{
    m_timer->setSingleShot(true);
}

void HRQTimerClock::start(int milliseconds)
{
    m_timer->start(milliseconds);
}

void HRQTimerClock::stop()
{
    m_timer->stop();
}

bool HRQTimerClock::isRunning() const
{
    return m_timer->isActive();
}

HRHideTimer::HRHideTimer(HRHideClock &clock, Delay delay)
    : m_clock(clock)
    , m_delay(std::move(delay))
{
}

void HRHideTimer::restart()
{
    m_clock.stop();
    const double delay = m_delay();
    // Hosts may set any number, also none: NaN is above nothing.
    if (delay > 0)
        m_clock.start(int(qMin(delay, double(std::numeric_limits<int>::max()))));
}

void HRHideTimer::stop()
{
    m_clock.stop();
}

void HRHideTimer::decide(bool isPointerSafe)
{
    if (isPointerSafe)
        stop();
    else
        restart();
}

void HRHideTimer::follow(bool isPointerSafe)
{
    if (isPointerSafe == isRunning())
        decide(isPointerSafe);
}

} // namespace Hintreels
