// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

namespace Hintreels {

/// Times the pictures of a source: each is shown one period after the one before.
///
/// The clock, not the container's timestamps, times the pictures, and it runs on from clip to clip.
class HRVideoClock
{
public:
    /// The time of the next picture, in seconds.
    double time() const { return m_time; }
    void setTime(double seconds) { m_time = seconds; }

    /// Moves on by one period, and returns the time before that.
    /// @param frameRate in pictures per second; where it is 0 the clock stands
    double tick(double frameRate)
    {
        const double now = m_time;
        if (frameRate > 0.0)
            m_time += 1.0 / frameRate;
        return now;
    }

private:
    double m_time = 0.0;
};

} // namespace Hintreels
