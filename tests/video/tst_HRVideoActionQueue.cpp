// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRVideoActionQueue_p.h"

#include <QElapsedTimer>
#include <QtTest>

#include <thread>
#include <vector>

using namespace Hintreels;

class tst_HRVideoActionQueue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takeFirst_returnsNull_whenEmpty();
    void takeFirst_returnsTheOldest();
    void clear_dropsAll();
    void append_endsTheWait();
    void wait_returnsAtOnce_whileChangesArePending();
    void append_losesNothing_fromManyThreads();
};

namespace {

std::unique_ptr<HRVideoSourceChange> change(HRVideoSource::Action action)
{
    return std::make_unique<HRVideoSourceChange>(action);
}

} // namespace

void tst_HRVideoActionQueue::takeFirst_returnsNull_whenEmpty()
{
    HRVideoActionQueue queue;
    QVERIFY(!queue.takeFirst());
}

void tst_HRVideoActionQueue::takeFirst_returnsTheOldest()
{
    HRVideoActionQueue queue;
    queue.append(change(HRVideoSource::closeAction));
    queue.append(std::make_unique<HRVideoSourceSourceChange>(QUrl("file:///a")));
    QCOMPARE(queue.takeFirst()->type(), 1);
    QCOMPARE(queue.takeFirst()->type(), 3);
    QVERIFY(!queue.takeFirst());
}

void tst_HRVideoActionQueue::clear_dropsAll()
{
    HRVideoActionQueue queue;
    queue.append(change(HRVideoSource::closeAction));
    queue.append(change(HRVideoSource::idleAction));
    queue.clear();
    QVERIFY(!queue.takeFirst());
}

void tst_HRVideoActionQueue::append_endsTheWait()
{
    HRVideoActionQueue queue;
    std::thread other([&queue] { queue.append(change(HRVideoSource::closeAction)); });
    queue.wait(std::chrono::hours(1));
    other.join();
    QVERIFY(queue.takeFirst());
}

void tst_HRVideoActionQueue::wait_returnsAtOnce_whileChangesArePending()
{
    HRVideoActionQueue queue;
    for (int i = 0; i < 3; ++i)
        queue.append(change(HRVideoSource::closeAction));
    QElapsedTimer timer;
    timer.start();
    do
        queue.wait(std::chrono::seconds(1));
    while (queue.takeFirst());
    QVERIFY2(timer.elapsed() < 900, qPrintable(QString::number(timer.elapsed())));
}

void tst_HRVideoActionQueue::append_losesNothing_fromManyThreads()
{
    constexpr int perThread = 2000;
    HRVideoActionQueue queue;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&queue] {
            for (int n = 0; n < perThread; ++n)
                queue.append(change(HRVideoSource::idleAction));
        });
    }
    int taken = 0;
    while (taken < 4 * perThread) {
        if (queue.takeFirst())
            ++taken;
    }
    for (std::thread &thread : threads)
        thread.join();
    QVERIFY(!queue.takeFirst());
}

QTEST_APPLESS_MAIN(tst_HRVideoActionQueue)
#include "tst_HRVideoActionQueue.moc"
