// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "gates/HRScriptWatch_p.h"

#include "gates/HRWatchThread_p.h"

#include <QJSValue>
#include <QQmlEngine>

#include <utility>

namespace Hintreels {

namespace {

constexpr qint64 moment = 50; // ms

} // namespace

bool isScriptRunning(QQmlEngine &engine)
{
    const QJSValue error = engine.newErrorObject(QJSValue::GenericError);
    return !error.property(QStringLiteral("stack")).toString().isEmpty();
}

HRScriptWatch::Entry::Entry(const std::shared_ptr<HRScriptWatch> &watch)
    : m_watch(watch)
    , m_begin(watch->now())
    , m_since(watch->m_since)
    , m_hostCalls(watch->m_hostCalls)
    , m_answers(watch->m_answers)
    , m_isOutermost(!watch->isInsideScript())
{
    // Inside a script that was stopped, nothing it leads to lets it go on.
    if (m_isOutermost)
        m_watch->release();
    // The time until now was the host's.
    if (m_isOutermost || m_hostCalls > 0)
        m_watch->m_since = m_begin;
    m_watch->m_hostCalls = 0;
    ++m_watch->m_entries;
}

HRScriptWatch::Entry::~Entry()
{
    m_watch->m_wasScript |= m_watch->m_interrupted;
    --m_watch->m_entries;
    m_watch->m_hostCalls = m_hostCalls;
    // What led here goes on where it stood: a script does not win time by what it leads to.
    if (m_watch->m_answers != m_answers)
        m_watch->m_since = m_watch->now();
    else if (!m_isOutermost)
        m_watch->m_since = m_since;
}

HRScriptWatch::HostCall::HostCall(const std::shared_ptr<HRScriptWatch> &watch)
    : m_watch(watch)
    , m_begin(watch->now())
    , m_answers(watch->m_answers)
{
    ++m_watch->m_hostCalls;
}

HRScriptWatch::HostCall::~HostCall()
{
    if (m_watch->m_answers != m_answers)
        m_watch->m_since = m_watch->now();
    else
        m_watch->m_since += m_watch->now() - m_begin;
    if (m_watch->m_hostCalls > 0) // an event loop in the call ends all of them
        --m_watch->m_hostCalls;
}

HRScriptWatch::HRScriptWatch(QQmlEngine *engine)
    : m_engine(engine)
{
}

HRScriptWatch::~HRScriptWatch()
{
    start(0);
}

void HRScriptWatch::start(int limit)
{
    m_limit = limit;
    if (limit > 0 && !m_thread) {
        m_thread = HRWatchThread::shared();
        m_thread->add(this);
    } else if (limit <= 0 && m_thread) {
        m_thread->remove(this);
        m_thread.reset();
        m_asked = false;
    }
}

qint64 HRScriptWatch::now() const
{
    return m_thread ? m_thread->now() : 0;
}

bool HRScriptWatch::isInsideScript() const
{
    if (m_entries > 0 || m_hostCalls > 0)
        return true;
    // Asking the engine costs more than most events do; what began just now needs no new start.
    return now() - m_since <= moment || isScriptRunning(*m_engine);
}

/// Lets the engine run again.
void HRScriptWatch::release()
{
    if (m_interrupted.exchange(false))
        m_engine->setInterrupted(false);
}

void HRScriptWatch::answer()
{
    ++m_answers;
    m_asked = false;
    m_hostCalls = 0; // what is left of them runs an event loop
    release();
    if (std::exchange(m_wasScript, false))
        Q_EMIT stopped(m_limit);
}

void HRScriptWatch::check(qint64 now)
{
    if (!m_asked.exchange(true)) {
        m_since = now;
        QMetaObject::invokeMethod(
            this, [this] { answer(); }, Qt::QueuedConnection);
        return;
    }
    if (m_hostCalls > 0 || now - m_since <= m_limit)
        return;
    if (!m_interrupted.exchange(true))
        m_engine->setInterrupted(true);
}

} // namespace Hintreels
