// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRSwings_p.h"

#include <algorithm>

namespace Hintreels {

bool HRSwings::follow(float value, bool mayBeLow, float step, double seconds)
{
    const Extreme now{ value, mayBeLow };
    if (!m_isBegun)
        m_low = m_high = now;
    m_isBegun = true;
    widen(now);
    if (!isChange(now, step))
        return false;
    turn(now, seconds);
    return true;
}

int HRSwings::countSince(double seconds) const
{
    const auto first = std::upper_bound(m_times.begin(), m_times.end(), seconds);
    return int(m_times.end() - first);
}

void HRSwings::widen(const Extreme &now)
{
    if (now.value < m_low.value)
        m_low = now;
    if (now.value > m_high.value)
        m_high = now;
}

/// Up and down take turns: what goes on rising is the same rise.
bool HRSwings::isChange(const Extreme &now, float step) const
{
    const bool rises = !m_wasRise && now.value - m_low.value >= step && m_low.mayBeLow;
    const bool falls = !m_wasFall && m_high.value - now.value >= step && now.mayBeLow;
    return rises || falls;
}

void HRSwings::turn(const Extreme &now, double seconds)
{
    m_wasRise = now.value > m_low.value;
    m_wasFall = !m_wasRise;
    m_low = m_high = now;
    m_times.erase(m_times.begin(), std::upper_bound(m_times.begin(), m_times.end(), seconds - 1.0));
    m_times.push_back(seconds);
}

} // namespace Hintreels
