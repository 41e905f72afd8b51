// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "gates/HRWatchThread_p.h"

#include "gates/HRScriptWatch_p.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>

#include <chrono>

namespace Hintreels {

namespace {

// By this much a script may run for longer than it may.
constexpr std::chrono::milliseconds interval(250);

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
    const QAbstractEventDispatcher *loop = QAbstractEventDispatcher::instance();
    connect(loop, &QAbstractEventDispatcher::aboutToBlock, this, &HRWatchThread::loopWillWait);
    connect(loop, &QAbstractEventDispatcher::awake, this, &HRWatchThread::loopIsBack);
    QCoreApplication::instance()->installEventFilter(this);
}

HRWatchThread::~HRWatchThread()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_ends = true;
        m_wake.notify_one();
    }
    wait();
}

void HRWatchThread::add(HRScriptWatch *watch)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_watches.append(watch);
}

void HRWatchThread::remove(HRScriptWatch *watch)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_watches.removeOne(watch);
}

bool HRWatchThread::eventFilter(QObject *receiver, QEvent *)
{
    // Some loops say that they are back only when they have sent the events.
    if (m_loopWaits)
        loopIsBack();
    for (HRScriptWatch *watch : qAsConst(m_watches))
        watch->eventBegins(*receiver);
    return false;
}

void HRWatchThread::loopWillWait()
{
    loopIsBack();
    m_loopWaits = true;
}

void HRWatchThread::loopIsBack()
{
    for (HRScriptWatch *watch : qAsConst(m_watches))
        watch->loopIsBack();
    m_loopWaits = false;
    if (m_rests)
        endRest();
}

void HRWatchThread::endRest()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_wake.notify_one();
}

void HRWatchThread::run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_ends) {
        // Said first, then looked: the GUI thread does it the other way round.
        m_rests = true;
        while (m_loopWaits && !m_ends)
            m_wake.wait(lock);
        m_rests = false;
        for (HRScriptWatch *watch : qAsConst(m_watches))
            watch->check(now());
        if (!m_ends)
            m_wake.wait_for(lock, interval);
    }
}

} // namespace Hintreels
