// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QThread>
#include <QVector>

#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>

namespace Hintreels {

class HRScriptWatch;

/// The thread that looks after all scripts of a process; it ends with the last watch.
///
/// It looks on while the GUI thread's event loop is at work, and rests for as long as the loop
/// waits for something to do; it never wakes the loop. An application-wide event filter tells the
/// watches of each event, and is what ends the rest.
class HRWatchThread : public QThread
{
public:
    static std::shared_ptr<HRWatchThread> shared();
    ~HRWatchThread() override;

    void add(HRScriptWatch *watch);

    /// When this returns, the thread does not touch the watch any more.
    void remove(HRScriptWatch *watch);

    /// Milliseconds since the thread was made.
    qint64 now() const { return m_clock.elapsed(); }

    /// Whether it sleeps until the event loop has something to do.
    bool rests() const { return m_rests; }

    bool eventFilter(QObject *receiver, QEvent *event) override;

protected:
    void run() override;

private:
    HRWatchThread();

    void loopWillWait();
    void loopIsBack();
    void endRest();

    QElapsedTimer m_clock;
    // Of the standard library, which ThreadSanitizer looks into.
    std::mutex m_mutex;
    std::condition_variable m_wake;
    // Written by the GUI thread, under m_mutex; read by the thread under it.
    QVector<HRScriptWatch *> m_watches;
    bool m_ends = false; // guarded by m_mutex
    std::atomic<bool> m_loopWaits{ false };
    std::atomic<bool> m_rests{ false };
};

} // namespace Hintreels
