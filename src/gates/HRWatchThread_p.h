// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QMutex>
#include <QThread>
#include <QVector>
#include <QWaitCondition>

#include <memory>

namespace Hintreels {

class HRScriptWatch;

/// The thread that looks after all scripts of a process; it ends with the last watch.
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

protected:
    void run() override;

private:
    HRWatchThread();

    QElapsedTimer m_clock;
    QMutex m_mutex;
    QWaitCondition m_wake;
    QVector<HRScriptWatch *> m_watches; // guarded by m_mutex
    bool m_ends = false; // guarded by m_mutex
};

} // namespace Hintreels
