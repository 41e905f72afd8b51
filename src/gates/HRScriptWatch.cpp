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

// A script ends at once when it is stopped; this much is for a machine that is busy.
constexpr qint64 promptly = 500; // ms

bool isPartOf(const QObject *object, const QObject *whole)
{
    while (object && object != whole)
        object = object->parent();
    return object;
}

/// Whether an object is one of those that Qt shares among all engines and the host: they drive
/// animations, call back later, load components and pictures.
bool isSharedHelper(const QObject &object)
{
    const QLatin1String name(object.metaObject()->className());
    return name.startsWith(QLatin1String("QQml")) || name.startsWith(QLatin1String("QQuick"))
        || name.endsWith(QLatin1String("AnimationDriver")) || name == QLatin1String("QUnifiedTimer")
        || (name == QLatin1String("QObject") && !object.parent());
}

/// Whether a script of an engine may run since an object gets an event.
bool mayLeadToScripts(const QObject &receiver, const QQmlEngine &engine)
{
    if (const QQmlEngine *own = qmlEngine(&receiver))
        return own == &engine;
    const QObject *view = engine.parent() ? engine.parent() : &engine;
    return isPartOf(&receiver, view) || isSharedHelper(receiver);
}

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
    , m_entries(watch->m_entries)
    , m_hostCalls(watch->m_hostCalls)
    , m_loops(watch->m_loops)
    // Asking the engine costs more than most events do; what began just now needs no new start.
    , m_isOutermost(m_begin - m_since > moment && !watch->isInsideScript())
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
    if (m_watch->m_interrupted)
        m_watch->tellLater();
    m_watch->m_entries = m_entries;
    m_watch->m_hostCalls = m_hostCalls;
    // What led here goes on where it stood: a script does not win time by what it leads to.
    if (m_watch->m_loops != m_loops)
        m_watch->m_since = m_watch->now();
    else if (!m_isOutermost)
        m_watch->m_since = m_since;
}

HRScriptWatch::HostCall::HostCall(const std::shared_ptr<HRScriptWatch> &watch)
    : m_watch(watch)
    , m_begin(watch->now())
    , m_hostCalls(watch->m_hostCalls)
    , m_loops(watch->m_loops)
{
    ++m_watch->m_hostCalls;
}

HRScriptWatch::HostCall::~HostCall()
{
    if (m_watch->m_loops != m_loops)
        m_watch->m_since = m_watch->now();
    else
        m_watch->m_since += m_watch->now() - m_begin;
    m_watch->m_hostCalls = m_hostCalls;
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
        startClock();
        m_thread->add(this);
    } else if (limit <= 0 && m_thread) {
        m_thread->remove(this);
        m_thread.reset();
    }
    m_wasScript = false;
    release();
}

void HRScriptWatch::loopIsBack()
{
    settle();
    ++m_loops;
    m_entries = 0; // what is left of them runs an event loop
    m_hostCalls = 0;
    m_mayLeadToScripts = false;
    startClock();
}

void HRScriptWatch::eventBegins(const QObject &receiver)
{
    const bool mayLead = mayLeadToScripts(receiver, *m_engine);
    // As in an Entry. But who comes after the scene may block for as long as it likes.
    const bool isSoon = now() - m_since <= moment && (mayLead || !m_mayLeadToScripts);
    if (isSoon || isInsideScript()) {
        m_mayLeadToScripts |= mayLead;
        return;
    }
    settle();
    m_mayLeadToScripts = mayLead;
    startClock();
}

void HRScriptWatch::check(qint64 now)
{
    if (m_hostCalls > 0 || now - m_since <= m_limit || m_interrupted)
        return;
    m_interruptedAt = now;
    m_interrupted = true;
    m_engine->setInterrupted(true);
}

qint64 HRScriptWatch::now() const
{
    return m_thread ? m_thread->now() : 0;
}

bool HRScriptWatch::isInsideScript() const
{
    return m_entries > 0 || m_hostCalls > 0 || isScriptRunning(*m_engine);
}

void HRScriptWatch::startClock()
{
    m_since = now();
}

/// Finds out who took so long, when it is over.
void HRScriptWatch::settle()
{
    if (!m_interrupted)
        return;
    if (m_mayLeadToScripts && now() - m_interruptedAt <= promptly)
        tellLater();
    else
        release();
}

void HRScriptWatch::tellLater()
{
    if (std::exchange(m_wasScript, true))
        return;
    QMetaObject::invokeMethod(
        this, [this, limit = int(m_limit)] { Q_EMIT stopped(limit); }, Qt::QueuedConnection);
}

/// Lets the engine run again, unless its scene goes.
void HRScriptWatch::release()
{
    if (!m_wasScript && m_interrupted.exchange(false))
        m_engine->setInterrupted(false);
}

} // namespace Hintreels
