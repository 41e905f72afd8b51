// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <limits>
#include <vector>

namespace Hintreels {

/// What a file says of one picture's time, in seconds; not a number where it says nothing.
struct HRFileTime
{
    double start = std::numeric_limits<double>::quiet_NaN();
    double length = std::numeric_limits<double>::quiet_NaN();
};

/// How long a picture is shown that the file has from @p start to @p end, in seconds.
///
/// One @p period where the end is not behind the start, more than 10 s away, or either is missing:
/// nobody waits that long for a clip to go on.
double shownFor(double start, double end, double period);

/// When the pictures of a clip are shown that goes by the times of its file, from 0 on.
///
/// A picture ends where the next one begins; the last one when the file says. Lock-free.
class HRPictureTimes
{
public:
    /// Adds a picture in order of presentation.
    /// @param period in seconds, for what the file does not tell
    void append(const HRFileTime &time, double period);
    void clear() { *this = HRPictureTimes(); }

    size_t count() const { return m_starts.size(); }
    /// When picture @p index, which is there, is shown and is no longer, in seconds.
    double start(size_t index) const { return m_starts[index]; }
    double end(size_t index) const { return index + 1 < count() ? start(index + 1) : m_end; }
    /// The end of the last picture, in seconds; 0 without any.
    double length() const { return m_end; }
    /// The picture that is shown at @p seconds; the first one before it, and the last one, or 0
    /// without any, beyond the end.
    size_t indexAt(double seconds) const;

private:
    std::vector<double> m_starts;
    double m_end = 0.0;
    double m_lastStart = 0.0; // of the last picture, as the file has it
};

} // namespace Hintreels
