// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRPacing_p.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Hintreels {

namespace {

constexpr double dayLength = 86400000.0; // ms
constexpr double millisecondsPerSecond = 1000.0;

double elapsedMilliseconds(const QDateTime &last, const QDateTime &now)
{
    if (!last.isValid())
        return 0.0;
    // A clock that was set back has measured nothing.
    const double elapsed = last.daysTo(now) * dayLength + last.time().msecsTo(now.time());
    return std::max(elapsed, 0.0);
}

} // namespace

int HRPacing::delay() const
{
    const double period = 1.0 / frameRate;
    const double behind = double(position - displayed) * period;
    // Meant so: milliseconds are scaled up and then compared with seconds, hence any gap that can
    // be measured at all makes up for the pictures that were not fetched.
    const double elapsed = elapsedMilliseconds(last, now) * 1000.0;
    const double wait = behind - std::min(elapsed, behind);
    const double milliseconds = std::max(wait, period) * millisecondsPerSecond;
    if (!std::isfinite(milliseconds) || milliseconds <= 0.0)
        return 0;
    return int(std::min(milliseconds, double(std::numeric_limits<int>::max())));
}

} // namespace Hintreels
