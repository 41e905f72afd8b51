// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "video/HRHeldLocks_p.h"
#include "video/HRSchedule_p.h"

#include <QMutex>

#include <mutex>

namespace Hintreels {

/// A recursive QMutex that ThreadSanitizer knows about.
///
/// Qt's mutexes live in a library that the sanitizer does not see into, so in a build with
/// -fsanitize=thread this class tells it of each step. A build with assertions ends the program
/// where a thread takes a lock out of order. In any other it is the mutex alone.
class HRMutex
{
public:
    explicit HRMutex(HRLock lock)
        : m_lock(lock)
    {
#ifdef __SANITIZE_THREAD__
        __tsan_mutex_create(this, __tsan_mutex_write_reentrant);
#endif
    }
#ifdef __SANITIZE_THREAD__
    ~HRMutex()
    {
        __tsan_mutex_destroy(this, __tsan_mutex_write_reentrant);
    }
#endif
    Q_DISABLE_COPY(HRMutex)

    void lock()
    {
        HRSchedule::step();
        noteTaken();
        beforeLock(0);
        m_mutex.lock();
        afterLock(0);
    }

    /// @return false where the lock cannot be had within @p milliseconds
    bool tryLock(int milliseconds)
    {
        HRSchedule::step();
#ifdef __SANITIZE_THREAD__
        beforeLock(__tsan_mutex_try_lock);
        const bool locked = m_mutex.tryLock(milliseconds);
        afterLock(__tsan_mutex_try_lock | (locked ? 0 : __tsan_mutex_try_lock_failed));
#else
        const bool locked = m_mutex.tryLock(milliseconds);
#endif
        if (locked)
            noteTaken();
        return locked;
    }

    void unlock()
    {
        noteReleased();
#ifdef __SANITIZE_THREAD__
        __tsan_mutex_pre_unlock(this, 0);
        m_mutex.unlock();
        __tsan_mutex_post_unlock(this, 0);
#else
        m_mutex.unlock();
#endif
        HRSchedule::step();
    }

private:
#ifdef NDEBUG
    void noteTaken() { }
    void noteReleased() { }
#else
    static HRHeldLocks &held()
    {
        thread_local HRHeldLocks locks;
        return locks;
    }
    void noteTaken()
    {
        if (!held().take(this, m_lock))
            qFatal("lock %d is taken out of order", int(m_lock));
    }
    void noteReleased()
    {
        held().release(this);
    }
#endif
#ifdef __SANITIZE_THREAD__
    void beforeLock(unsigned flags)
    {
        __tsan_mutex_pre_lock(this, flags);
    }
    void afterLock(unsigned flags)
    {
        __tsan_mutex_post_lock(this, flags, 1);
    }
#else
    void beforeLock(unsigned) { }
    void afterLock(unsigned) { }
#endif

    QRecursiveMutex m_mutex;
    const HRLock m_lock;
};

using HRMutexLocker = std::lock_guard<HRMutex>;

} // namespace Hintreels
