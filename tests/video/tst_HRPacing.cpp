// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRPacing_p.h"

#include <QtTest>

#include <limits>
#include <random>

using namespace Hintreels;

class tst_HRPacing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void delay_followsRateBacklogAndClock_data();
    void delay_followsRateBacklogAndClock();
    void delay_isWhatTheFileSays_data();
    void delay_isWhatTheFileSays();
    void dueTime_doesNotDrift_data();
    void dueTime_doesNotDrift();
    void dueTime_countsFromNow_whereNothingWasWaitedFor();
};

void tst_HRPacing::delay_followsRateBacklogAndClock_data()
{
    const QDateTime now(QDate(2026, 6, 1), QTime(12, 0), Qt::UTC);
    const QDateTime midnight(QDate(2026, 6, 2), QTime(0, 0), Qt::UTC);
    constexpr quint64 wrapped = std::numeric_limits<quint64>::max();

    QTest::addColumn<quint64>("displayed");
    QTest::addColumn<quint64>("position");
    QTest::addColumn<double>("rate");
    QTest::addColumn<QDateTime>("last");
    QTest::addColumn<QDateTime>("now");
    QTest::addColumn<double>("delay"); // ms

    const auto row = [](const char *name, quint64 displayed, quint64 position, double rate,
                         const QDateTime &last, const QDateTime &present, double delay) {
        QTest::newRow(name) << displayed << position << rate << last << present << delay;
    };
    row("one step behind waits a period", 4, 5, 25.0, now.addMSecs(-40), now, 40);
    row("a period is exact", 4, 5, 30.0, now.addMSecs(-33), now, 33.333333);
    row("level with the display waits a period", 5, 5, 25.0, now.addMSecs(-40), now, 40);
    row("a backlog waits when no time has passed", 2, 5, 25.0, now, now, 120);
    row("a backlog is forgotten when time has passed", 2, 5, 25.0, now.addMSecs(-1), now, 40);
    row("first picture", wrapped, 0, 25.0, QDateTime(), now, 40);
    row("over midnight", 2, 5, 25.0, midnight.addMSecs(-5), midnight.addMSecs(5), 40);
    row("clock set back an hour", 4, 5, 25.0, now.addSecs(3600), now, 40);
    row("clock set back three days", 2, 5, 25.0, now.addDays(3), now, 120);
    row("no rate", 4, 5, 0.0, now.addMSecs(-40), now, 0);
    row("negative rate", 4, 5, -25.0, now.addMSecs(-40), now, 0);
    row("rate is not a number", 4, 5, std::numeric_limits<double>::quiet_NaN(), now, now, 0);
    row("endless rate", 4, 5, std::numeric_limits<double>::infinity(), now, now, 0);
    row("one picture in 1000 s", 4, 5, 0.001, now.addMSecs(-40), now, 1000000);
    row("one picture in an age", 4, 5, 1e-30, now.addMSecs(-40), now, 24 * 86400e3);
}

void tst_HRPacing::delay_followsRateBacklogAndClock()
{
    QFETCH(quint64, displayed);
    QFETCH(quint64, position);
    QFETCH(double, rate);
    QFETCH(QDateTime, last);
    QFETCH(QDateTime, now);
    const HRPacing pacing{ displayed, position, rate, last, now, 0.0 };
    QTEST(double(pacing.delay().count()) / 1e6, "delay");
}

void tst_HRPacing::delay_isWhatTheFileSays_data()
{
    QTest::addColumn<quint64>("displayed");
    QTest::addColumn<double>("rate");
    QTest::addColumn<double>("shown"); // seconds
    QTest::newRow("longer than a period") << quint64(4) << 25.0 << 2.5;
    QTest::newRow("shorter than a period") << quint64(4) << 25.0 << 0.01;
    QTest::newRow("with a backlog") << quint64(0) << 25.0 << 0.5;
    QTest::newRow("without a rate") << quint64(4) << 0.0 << 0.5;
}

void tst_HRPacing::delay_isWhatTheFileSays()
{
    QFETCH(quint64, displayed);
    QFETCH(double, rate);
    QFETCH(double, shown);
    const QDateTime now(QDate(2026, 6, 1), QTime(12, 0), Qt::UTC);
    const HRPacing pacing{ displayed, 5, rate, now, now, shown };
    QCOMPARE(double(pacing.delay().count()) / 1e9, shown);
}

void tst_HRPacing::dueTime_doesNotDrift_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<double>("late"); // at most, in periods
    for (double rate :
        { 24000.0 / 1001.0, 24.0, 25.0, 30000.0 / 1001.0, 30.0, 50.0, 60.0, 144.0 }) {
        for (double late : { 0.0, 0.05, 0.9, 3.0 })
            QTest::addRow("%.3f a second, up to %.2f late", rate, late) << rate << late;
    }
}

void tst_HRPacing::dueTime_doesNotDrift()
{
    QFETCH(double, rate);
    QFETCH(double, late);
    constexpr int pictures = 10000;
    std::mt19937 random(7);
    std::uniform_real_distribution<double> lateness(0.0, late * 1e9 / rate);
    const QDateTime midnight(QDate(2026, 6, 1), QTime(0, 0), Qt::UTC);
    const HRDueTime::Time start;
    HRDueTime::Time now = start;
    HRDueTime::Time due = start;
    HRDueTime dueTime;
    for (quint64 i = 0; i < pictures; ++i) {
        const double period = 1e9 / rate;
        const double ahead = double(i) * period - double((now - start).count());
        QVERIFY2(ahead < 1e4, qPrintable(QString("picture %1: %2 ns").arg(i).arg(ahead)));
        // Each picture is fetched before the next is due.
        const HRPacing pacing{ i, i, rate, midnight, midnight.addMSecs(1), 0.0 };
        due = dueTime.next(now, pacing.delay());
        const std::chrono::nanoseconds delayed(qint64(lateness(random)));
        now = std::max(now, due + delayed);
    }
    const double length = std::chrono::duration<double>(due - start).count();
    QVERIFY2(qAbs(length - pictures / rate) < 1e-5, qPrintable(QString::number(length, 'g', 12)));
}

void tst_HRPacing::dueTime_countsFromNow_whereNothingWasWaitedFor()
{
    using std::chrono::milliseconds;
    const HRDueTime::Time start;
    HRDueTime dueTime;
    QCOMPARE(dueTime.next(start, milliseconds(40)), start + milliseconds(40));
    // Late, and made up.
    QCOMPARE(dueTime.next(start + milliseconds(47), milliseconds(40)), start + milliseconds(80));
    dueTime.forget();
    QCOMPARE(dueTime.next(start + milliseconds(300), milliseconds(250)), start + milliseconds(550));
}

QTEST_APPLESS_MAIN(tst_HRPacing)
#include "tst_HRPacing.moc"
