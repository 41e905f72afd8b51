// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRPictureTimes_p.h"

#include <algorithm>

namespace Hintreels {

namespace {

constexpr double longestStill = 10.0; // seconds

} // namespace

double shownFor(double start, double end, double period)
{
    const double length = end - start;
    // What is missing is not a number, and neither above nor below any.
    return length > 0.0 && length <= longestStill ? length : period;
}

void HRPictureTimes::append(const HRFileTime &time, double period)
{
    if (!m_starts.empty())
        m_end = m_starts.back() + shownFor(m_lastStart, time.start, period);
    m_starts.push_back(m_end);
    m_lastStart = time.start;
    m_end += shownFor(0.0, time.length, period);
}

size_t HRPictureTimes::indexAt(double seconds) const
{
    const auto next = std::upper_bound(m_starts.begin(), m_starts.end(), seconds);
    return size_t(std::max<std::ptrdiff_t>(next - m_starts.begin(), 1) - 1);
}

} // namespace Hintreels
