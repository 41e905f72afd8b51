// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace Hintreels {

/// What a resting thread waits on, and others ring when there is something for it to look at.
///
/// A ring is remembered until the next wait, so none is lost; several count as one. Its lock is a
/// leaf: nothing else is locked under it.
class HRWakeup
{
public:
    HRWakeup() = default;
    Q_DISABLE_COPY(HRWakeup)

    void ring();

    /// Returns at the next ring, at once where one came since the last wait.
    /// @return false where none came by @p latest
    bool waitUntil(std::chrono::steady_clock::time_point latest);
    bool waitFor(std::chrono::milliseconds longest);

private:
    std::mutex m_mutex;
    std::condition_variable m_condition;
    bool m_rung = false; // guarded by m_mutex
};

} // namespace Hintreels
