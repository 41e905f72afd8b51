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

/// Interrupts a scene's script that runs for too long.
///
/// Qt does not tell when a script begins. So a thread that all watches share sends each a sign of
/// life through the event loop; where it is not answered for as long as a script may run, the GUI
/// thread is at work. As long as that is known to be the host's work, nothing happens: what the
/// library calls the host for is marked by HostCall, and the clock starts anew at each Entry into a
/// scene that the library knows of. Else the engine is told to stop, and its next step ends the
/// script. A host that blocks the event loop without the library knowing loses nothing: the engine
/// is let go again as soon as the event loop is back or a scene is entered.
///
/// A script that a timer or Qt.callLater() starts is ended, too, but nobody is told: it cannot be
/// told from a host that blocks. What it cannot end: a script that waits inside one of Qt's own
/// operations.
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
        int m_hostCalls;
        int m_answers;
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
        int m_answers;
    };

Q_SIGNALS:
    /// From the event loop, after a script was stopped.
    void stopped(int limit);

private:
    friend class HRWatchThread;

    qint64 now() const;
    bool isInsideScript() const;
    void release();
    void answer();
    void check(qint64 now); // in the thread

    QQmlEngine *m_engine;
    std::shared_ptr<HRWatchThread> m_thread;
    std::atomic<int> m_limit{ 0 };
    std::atomic<int> m_hostCalls{ 0 };
    std::atomic<qint64> m_since{ 0 }; // ms, on the thread's clock
    std::atomic<bool> m_asked{ false };
    std::atomic<bool> m_interrupted{ false };
    int m_entries = 0;
    int m_answers = 0;
    bool m_wasScript = false;
};

} // namespace Hintreels
