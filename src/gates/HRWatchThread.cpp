// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "gates/HRWatchThread_p.h"

#include "gates/HRScriptWatch_p.h"

#include <QMutexLocker>

namespace Hintreels {

namespace {

// By this much a script may run for longer than it may; the event loop is woken as often.
constexpr unsigned long interval = 250; // ms

} // namespace

std::shared_ptr<HRWatchThread> HRWatchThread::shared()
{
    static std::weak_ptr<HRWatchThread> existing; // used by the GUI thread only
    std::shared_ptr<HRWatchThread> thread = existing.lock();
    if (!thread) {
        thread.reset(new HRWatchThread);
        existing = thread;
        thread->start();
    }
    return thread;
}

HRWatchThread::HRWatchThread()
{
    setObjectName(QStringLiteral("HRWatchThread"));
    m_clock.start();
}

HRWatchThread::~HRWatchThread()
{
    {
        const QMutexLocker locker(&m_mutex);
        m_ends = true;
        m_wake.wakeOne();
    }
    wait();
}

void HRWatchThread::add(HRScriptWatch *watch)
{
    const QMutexLocker locker(&m_mutex);
    m_watches.append(watch);
}

void HRWatchThread::remove(HRScriptWatch *watch)
{
    const QMutexLocker locker(&m_mutex);
    m_watches.removeOne(watch);
}

void HRWatchThread::run()
{
    QMutexLocker locker(&m_mutex);
    while (!m_ends) {
        for (HRScriptWatch *watch : qAsConst(m_watches))
            watch->check(now());
        m_wake.wait(&m_mutex, interval);
    }
}

} // namespace Hintreels
