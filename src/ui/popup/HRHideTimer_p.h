// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <functional>

QT_BEGIN_NAMESPACE
class QTimer;
QT_END_NAMESPACE

namespace Hintreels {

/// What a hide timer counts with: a QTimer in a popup, something moved by hand in a test.
class HRHideClock
{
public:
    virtual ~HRHideClock() = default;

    /// Starts anew where it runs already.
    /// @param milliseconds above zero or zero
    virtual void start(int milliseconds) = 0;
    virtual void stop() = 0;
    virtual bool isRunning() const = 0;
};

/// Counts with a single-shot timer, which somebody else owns and listens to.
class HRQTimerClock : public HRHideClock
{
public:
    /// @param timer must outlive the clock
    explicit HRQTimerClock(QTimer *timer);

    void start(int milliseconds) override;
    void stop() override;
    bool isRunning() const override;

private:
    QTimer *m_timer;
};

/// Decides when the time runs until a popup hides: while the pointer is away from it.
///
/// It borrows the clock, which tells of the time-out itself.
class HRHideTimer
{
public:
    /// The time that the pointer may be away, in milliseconds; for ever where it is not above zero.
    using Delay = std::function<double()>;

    HRHideTimer(HRHideClock &clock, Delay delay);

    bool isRunning() const { return m_clock.isRunning(); }

    /// Starts the time anew, unless the pointer may be away for ever.
    void restart();
    void stop();

    /// Decides anew: stops for a pointer that keeps the popup open, starts anew for any other.
    void decide(bool isPointerSafe);

    /// Follows a pointer that moves: decides only where the pointer has crossed the edge.
    void follow(bool isPointerSafe);

private:
    HRHideClock &m_clock;
    Delay m_delay;
};

} // namespace Hintreels
