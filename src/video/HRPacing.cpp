// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRPacing_p.h"

#include <algorithm>
#include <cmath>

namespace Hintreels {

namespace {

constexpr double dayLength = 86400000.0; // ms
constexpr double nanosecondsPerSecond = 1e9;
constexpr double longestDelay = 86400.0 * 24; // seconds; as good as for ever

double elapsedMilliseconds(const QDateTime &last, const QDateTime &now)
{
    if (!last.isValid())
        return 0.0;
    // A clock that was set back has measured nothing.
    const double elapsed = double(last.daysTo(now)) * dayLength + last.time().msecsTo(now.time());
    return std::max(elapsed, 0.0);
}

} // namespace

std::chrono::nanoseconds HRPacing::delay() const
{
    const double period = 1.0 / frameRate;
    const double behind = double(position - displayed) * period;
    // Meant so: milliseconds are scaled up and then compared with seconds, hence any gap that can
    // be measured at all makes up for the pictures that were not fetched.
    const double elapsed = elapsedMilliseconds(last, now) * 1000.0;
    const double wait = behind - std::min(elapsed, behind);
    const double seconds = shown > 0.0 ? shown : std::max(wait, period);
    if (!std::isfinite(seconds) || seconds <= 0.0)
        return std::chrono::nanoseconds(0);
    return std::chrono::nanoseconds(
        std::llround(std::min(seconds, longestDelay) * nanosecondsPerSecond));
}

} // namespace Hintreels
