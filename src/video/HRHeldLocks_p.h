// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <array>

namespace Hintreels {

/// The locks of the threads that play clips.
enum class HRLock
{
    controller,
    decoder,
    frame,
    state,
    status,
    queue
};

/// The locks that one thread holds, held against the order in which they are to be taken.
///
/// Needs no destructor: threads, and the process itself, take locks until their very end.
class HRHeldLocks
{
public:
    /// Notes that the thread is about to take @p mutex, which it may hold already.
    /// @return false where another that it holds forbids that; then nothing is noted
    bool take(const void *mutex, HRLock lock);
    /// Notes that the thread lets go of @p mutex once.
    void release(const void *mutex);

private:
    struct Held
    {
        const void *mutex;
        HRLock lock;
    };

    bool mayTake(const void *mutex, HRLock lock) const;

    std::array<Held, 16> m_held{}; // each as often as it is held; in use up to m_count
    int m_count = 0;
};

} // namespace Hintreels
