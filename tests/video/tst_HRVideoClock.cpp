// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRVideoClock_p.h"

#include <QtTest>

#include <limits>

using namespace Hintreels;

class tst_HRVideoClock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tick_returnsTheTimeBeforeItMovesOn();
    void tick_stands_whenTheRateSaysNothing();
    void setTime_goesThere();
};

void tst_HRVideoClock::tick_returnsTheTimeBeforeItMovesOn()
{
    HRVideoClock clock;
    QCOMPARE(clock.tick(25.0), 0.0);
    QCOMPARE(clock.tick(25.0), 0.04);
    QCOMPARE(clock.time(), 0.08);
}

void tst_HRVideoClock::tick_stands_whenTheRateSaysNothing()
{
    HRVideoClock clock;
    clock.setTime(2.0);
    for (double rate : { 0.0, -1.0, std::numeric_limits<double>::quiet_NaN() })
        QCOMPARE(clock.tick(rate), 2.0);
    QCOMPARE(clock.time(), 2.0);
}

void tst_HRVideoClock::setTime_goesThere()
{
    HRVideoClock clock;
    clock.setTime(3.5);
    QCOMPARE(clock.tick(10.0), 3.5);
}

QTEST_APPLESS_MAIN(tst_HRVideoClock)
#include "tst_HRVideoClock.moc"
