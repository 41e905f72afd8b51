// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/HRMeasuring_p.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QHash>
#include <QMutex>
#include <QWaitCondition>

#include <atomic>
#include <utility>

namespace Hintreels {

namespace {

constexpr qint64 longestWait = 40'000'000; // ns a hint: with all else, less than anybody sees

// Threads of a popup that is hidden for a while are gone.
constexpr int threadExpiry = 1000; // ms

} // namespace

/// What the thread knows.
struct HRMeasuring::Answers
{
    QMutex mutex;
    QHash<QString, QSize> sizes; // by path; guarded by mutex
    bool isMissed = false; // whoever asks does not wait any more; guarded by mutex
    QWaitCondition arrived;
    std::atomic_bool isOver{ false };
};

HRMeasuring::HRMeasuring(Measure measure, QObject *parent)
    : QObject(parent)
    , m_measure(std::move(measure))
    , m_answers(std::make_unique<Answers>())
    , m_patience(longestWait)
{
    m_threads.setMaxThreadCount(1);
    m_threads.setExpiryTimeout(threadExpiry);
}

HRMeasuring::~HRMeasuring()
{
    m_answers->isOver = true;
    m_threads.clear();
    m_threads.waitForDone();
}

QSize HRMeasuring::size(const QString &path)
{
    if (!m_asked.contains(path))
        start(path);
    const QMutexLocker lock(&m_answers->mutex);
    awaitLocked(path);
    m_answers->isMissed = m_answers->isMissed || !m_answers->sizes.contains(path);
    return m_answers->sizes.value(path);
}

void HRMeasuring::forget()
{
    m_threads.clear();
    m_asked.clear();
    m_patience = longestWait;
    const QMutexLocker lock(&m_answers->mutex);
    m_answers->sizes.clear();
    m_answers->isMissed = false;
}

void HRMeasuring::start(const QString &path)
{
    m_asked.insert(path);
    m_threads.start([this, path, answers = m_answers.get()] {
        const QSize size = m_measure(path, [answers] { return answers->isOver.load(); });
        const QMutexLocker lock(&answers->mutex);
        answers->sizes.insert(path, size);
        answers->arrived.wakeAll();
        if (std::exchange(answers->isMissed, false))
            QMetaObject::invokeMethod(this, &HRMeasuring::measured, Qt::QueuedConnection);
    });
}

void HRMeasuring::awaitLocked(const QString &path)
{
    QElapsedTimer waited;
    while (m_patience > 0 && !m_answers->sizes.contains(path)) {
        waited.start();
        QDeadlineTimer end;
        end.setPreciseRemainingTime(0, m_patience);
        m_answers->arrived.wait(&m_answers->mutex, end);
        m_patience -= waited.nsecsElapsed();
    }
}

} // namespace Hintreels
