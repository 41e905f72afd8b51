// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRWakeup_p.h"

#include "video/HRSchedule_p.h"

namespace Hintreels {

void HRWakeup::ring()
{
    HRSchedule::step();
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_rung = true;
    }
    m_condition.notify_all();
}

bool HRWakeup::waitUntil(std::chrono::steady_clock::time_point latest)
{
    HRSchedule::step();
    std::unique_lock<std::mutex> lock(m_mutex);
    const bool rung = m_condition.wait_until(lock, latest, [this] { return m_rung; });
    m_rung = false;
    return rung;
}

bool HRWakeup::waitFor(std::chrono::milliseconds longest)
{
    return waitUntil(std::chrono::steady_clock::now() + longest);
}

} // namespace Hintreels
