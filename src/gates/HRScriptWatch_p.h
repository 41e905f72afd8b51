// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <atomic>
#include <memory>

QT_BEGIN_NAMESPACE
class QQmlEngine;
QT_END_NAMESPACE

namespace Hintreels {

class HRWatchThread;

/// Whether a script is on the stack: a new error notes the calls that lead to it, outside there are
/// none.
bool isScriptRunning(QQmlEngine &engine);

/// Interrupts a scene's script that runs for too long, and tells so.
///
/// Qt does not tell when a script begins. So the clock starts anew whenever the event loop or an
/// object gets an event, and at each Entry into a scene that the library knows of; a thread that
/// all watches share looks at it while the event loop is at work. Where it runs for longer than a
/// script may, the engine is told to stop, and its next step ends the script. What the library
/// calls the host for is marked by HostCall: that time is the host's.
///
/// A host that blocks the event loop looks the same from outside. It was a script where it was
/// stopped inside an Entry; or where an object that may lead to the scene had got the event, and
/// the event was over promptly once the engine was told to stop. Else nothing is told, and the
/// engine is let go before it runs anything.
///
/// What it cannot end: a script that waits inside one of Qt's own operations.
///
/// Constructed, used and destroyed in the GUI thread; the clock is read by the thread.
class HRScriptWatch : public QObject
{
    Q_OBJECT

public:
    explicit HRScriptWatch(QQmlEngine *engine);
    ~HRScriptWatch() override;

    /// Watches from now on.
    /// To be ended before the engine is: those that mark something may keep the watch.
    /// @param limit milliseconds that a script may run; 0 or less ends the watch
    void start(int limit);

    /// Marks the way into a scene while it lives, as one that ends in scripts.
    class Entry
    {
    public:
        explicit Entry(const std::shared_ptr<HRScriptWatch> &watch);
        ~Entry();
        Q_DISABLE_COPY(Entry)

    private:
        std::shared_ptr<HRScriptWatch> m_watch;
        qint64 m_begin;
        qint64 m_since;
        int m_entries;
        int m_hostCalls;
        int m_loops;
        bool m_isOutermost;
    };

    /// Marks what a script calls the host for while it lives: that time is not the script's.
    class HostCall
    {
    public:
        explicit HostCall(const std::shared_ptr<HRScriptWatch> &watch);
        ~HostCall();
        Q_DISABLE_COPY(HostCall)

    private:
        std::shared_ptr<HRScriptWatch> m_watch;
        qint64 m_begin;
        int m_hostCalls;
        int m_loops;
    };

Q_SIGNALS:
    /// From the event loop, after a script was stopped. Until the watch starts anew, no script of
    /// the scene runs any more.
    void stopped(int limit);

private:
    friend class HRWatchThread;

    void loopIsBack();
    void eventBegins(const QObject &receiver);
    void check(qint64 now); // in the thread

    qint64 now() const;
    bool isInsideScript() const;
    void startClock();
    void settle();
    void tellLater();
    void release();

    QQmlEngine *m_engine;
    std::shared_ptr<HRWatchThread> m_thread;
    std::atomic<int> m_limit{ 0 };
    std::atomic<int> m_hostCalls{ 0 };
    std::atomic<qint64> m_since{ 0 }; // ms, on the thread's clock
    std::atomic<bool> m_interrupted{ false };
    std::atomic<qint64> m_interruptedAt{ 0 };
    int m_entries = 0;
    int m_loops = 0;
    bool m_mayLeadToScripts = false; // the event that is handled
    bool m_wasScript = false; // that was stopped; until the watch starts anew
};

} // namespace Hintreels
