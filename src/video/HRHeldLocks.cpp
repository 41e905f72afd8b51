// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRHeldLocks_p.h"

#include <algorithm>

namespace Hintreels {

namespace {

/// Whether @p lock may be taken while @p held is.
bool mayFollow(HRLock held, HRLock lock)
{
    switch (lock) {
    case HRLock::controller:
    case HRLock::decoder:
        return false;
    case HRLock::frame:
        return held == HRLock::controller;
    case HRLock::state:
        return held == HRLock::controller || held == HRLock::decoder;
    case HRLock::status:
        return held == HRLock::decoder;
    case HRLock::queue:
        return held != HRLock::queue;
    }
    return false;
}

} // namespace

bool HRHeldLocks::take(const void *mutex, HRLock lock)
{
    if (m_count == int(m_held.size()) || !mayTake(mutex, lock))
        return false;
    m_held[m_count++] = { mutex, lock };
    return true;
}

void HRHeldLocks::release(const void *mutex)
{
    const auto end = m_held.begin() + m_count;
    const auto held = std::find_if(
        m_held.begin(), end, [mutex](const Held &entry) { return entry.mutex == mutex; });
    if (held == end)
        return;
    std::copy(held + 1, end, held);
    --m_count;
}

bool HRHeldLocks::mayTake(const void *mutex, HRLock lock) const
{
    const auto end = m_held.begin() + m_count;
    const bool isHeld = std::any_of(
        m_held.begin(), end, [mutex](const Held &entry) { return entry.mutex == mutex; });
    return isHeld || std::all_of(m_held.begin(), end, [lock](const Held &entry) {
        return mayFollow(entry.lock, lock);
    });
}

} // namespace Hintreels
