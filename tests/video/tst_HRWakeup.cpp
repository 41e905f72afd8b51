// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRWakeup_p.h"

#include <QElapsedTimer>
#include <QtTest>

#include <atomic>
#include <thread>

using namespace Hintreels;
using namespace std::chrono_literals;

class tst_HRWakeup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wait_timesOut_whenNobodyRings();
    void wait_returnsAtOnce_whenRungBefore();
    void wait_countsSeveralRingsAsOne();
    void wait_endsAtTheRingOfAnotherThread();
};

void tst_HRWakeup::wait_timesOut_whenNobodyRings()
{
    HRWakeup wakeup;
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!wakeup.waitFor(20ms));
    QVERIFY(timer.elapsed() >= 19);
}

void tst_HRWakeup::wait_returnsAtOnce_whenRungBefore()
{
    HRWakeup wakeup;
    wakeup.ring();
    QVERIFY(wakeup.waitFor(1h));
}

void tst_HRWakeup::wait_countsSeveralRingsAsOne()
{
    HRWakeup wakeup;
    wakeup.ring();
    wakeup.ring();
    QVERIFY(wakeup.waitFor(1h));
    QVERIFY(!wakeup.waitFor(1ms));
}

void tst_HRWakeup::wait_endsAtTheRingOfAnotherThread()
{
    HRWakeup wakeup;
    std::atomic<bool> rung(false);
    std::thread other([&] {
        rung = true;
        wakeup.ring();
    });
    const bool woken = wakeup.waitFor(1h);
    other.join();
    QVERIFY(woken);
    QVERIFY(rung);
}

QTEST_APPLESS_MAIN(tst_HRWakeup)
#include "tst_HRWakeup.moc"
