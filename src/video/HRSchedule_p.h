// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QThread>

#ifdef __SANITIZE_THREAD__
#include <atomic>
#include <chrono>
#include <random>
#include <thread>

#include <sanitizer/tsan_interface.h>
#endif

/// What a build with -fsanitize=thread needs to know and does beside the threads' own work; nothing
/// in any other.
namespace Hintreels::HRSchedule {

#ifdef __SANITIZE_THREAD__

/// A step at which threads meet: sleeps now and then for up to half a millisecond, so that they
/// meet in orders that are seldom seen. The environment's HINTREELS_SCHEDULE, a number above 0,
/// says which.
inline void step()
{
    static const int seed = qEnvironmentVariableIntValue("HINTREELS_SCHEDULE");
    static std::atomic<unsigned> threads{ 0 };
    if (seed <= 0)
        return;
    thread_local std::minstd_rand random(unsigned(seed) * 1000 + ++threads);
    if (random() % 4 == 0)
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 500));
}

/// Lives for as long as a thread works: all of that came before what follows hasEnded().
class Work
{
public:
    explicit Work(QThread *thread)
        : m_thread(thread)
    {
    }
    ~Work() { __tsan_release(m_thread); }
    Q_DISABLE_COPY(Work)

private:
    QThread *const m_thread;
};

/// To be told where QThread::wait() has seen the end, which the sanitizer does not.
inline void hasEnded(QThread *thread)
{
    __tsan_acquire(thread);
}

#else

inline void step() { }
struct Work
{
    explicit Work(QThread *) { }
};
inline void hasEnded(QThread *) { }

#endif

} // namespace Hintreels::HRSchedule
