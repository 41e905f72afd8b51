// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QtGlobal>

#include <chrono>
#include <optional>

namespace Hintreels {

/// How long to wait after a picture was shown while playing.
struct HRPacing
{
    quint64 displayed = 0; ///< index of the picture fetched last
    quint64 position = 0; ///< index of the picture to show, before it moved on
    double frameRate = 0.0; ///< pictures per second
    QDateTime last; ///< when the position last moved on; invalid before that
    QDateTime now;
    double shown = 0.0; ///< seconds that the file gives the picture; 0 where the rate decides

    /// What the file says. Without that one period as a rule, to the nanosecond, or else what the
    /// pictures take that nobody has fetched, as far as that time has not passed; 0 where the rate
    /// says nothing.
    std::chrono::nanoseconds delay() const;
};

/// When the next picture of a clip that plays is due.
///
/// Delays are counted from when a picture was due, not from when the thread woke up for it: what is
/// late once is made up, and nothing adds up over a clip.
class HRDueTime
{
public:
    using Time = std::chrono::steady_clock::time_point;

    /// Moves on by @p delay, after a picture that waited for the time before, or else came @p now.
    Time next(Time now, std::chrono::nanoseconds delay)
    {
        m_due = m_due.value_or(now) + delay;
        return *m_due;
    }

    /// The next picture comes when it comes, and waits for nothing.
    void forget() { m_due.reset(); }

private:
    std::optional<Time> m_due;
};

} // namespace Hintreels
