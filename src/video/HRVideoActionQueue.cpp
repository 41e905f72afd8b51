// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRVideoActionQueue_p.h"

namespace Hintreels {

void HRVideoActionQueue::append(std::unique_ptr<HRVideoSourceChange> change)
{
    {
        const HRMutexLocker lock(m_mutex);
        m_changes.push_back(std::move(change));
    }
    wake();
}

std::unique_ptr<HRVideoSourceChange> HRVideoActionQueue::takeFirst()
{
    const HRMutexLocker lock(m_mutex);
    if (m_changes.empty())
        return nullptr;
    std::unique_ptr<HRVideoSourceChange> first = std::move(m_changes.front());
    m_changes.pop_front();
    return first;
}

void HRVideoActionQueue::clear()
{
    std::deque<std::unique_ptr<HRVideoSourceChange>> dropped;
    const HRMutexLocker lock(m_mutex);
    dropped.swap(m_changes);
}

void HRVideoActionQueue::wait(std::chrono::milliseconds longest)
{
    // A change that is appended in between is not missed: it rings after it is in the queue.
    if (isEmpty())
        m_wakeup.waitFor(longest);
}

bool HRVideoActionQueue::isEmpty()
{
    const HRMutexLocker lock(m_mutex);
    return m_changes.empty();
}

} // namespace Hintreels
