// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "video/HRMutex_p.h"
#include "video/HRVideoSource.h"
#include "video/HRWakeup_p.h"

#include <deque>
#include <memory>

namespace Hintreels {

/// The changes that were asked of a source and are still to be applied, oldest first.
///
/// Any thread may use it. Its lock is a leaf, never held while calling out, so that requests come
/// from wherever they are made, whatever else is locked there. A new change wakes the one thread
/// that waits.
class HRVideoActionQueue
{
public:
    void append(std::unique_ptr<HRVideoSourceChange> change);
    /// The oldest change; null where there is none.
    std::unique_ptr<HRVideoSourceChange> takeFirst();
    void clear();

    /// Ends the present or the next wait.
    void wake() { m_wakeup.ring(); }
    /// Returns at once while there are changes, else when one is appended, after @p longest at the
    /// latest.
    void wait(std::chrono::milliseconds longest);

private:
    bool isEmpty();

    HRMutex m_mutex{ HRLock::queue };
    std::deque<std::unique_ptr<HRVideoSourceChange>> m_changes; // guarded by m_mutex
    HRWakeup m_wakeup;
};

} // namespace Hintreels
