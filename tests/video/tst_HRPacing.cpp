// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRPacing_p.h"

#include <QtTest>

#include <limits>

using namespace Hintreels;

class tst_HRPacing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void delay_followsRateBacklogAndClock_data();
    void delay_followsRateBacklogAndClock();
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
    QTest::addColumn<int>("delay");

    const auto row = [](const char *name, quint64 displayed, quint64 position, double rate,
                         const QDateTime &last, const QDateTime &present, int delay) {
        QTest::newRow(name) << displayed << position << rate << last << present << delay;
    };
    row("one step behind waits a period", 4, 5, 25.0, now.addMSecs(-40), now, 40);
    row("periods are cut to whole milliseconds", 4, 5, 30.0, now.addMSecs(-33), now, 33);
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
    row("one picture in an age", 4, 5, 1e-30, now.addMSecs(-40), now,
        std::numeric_limits<int>::max());
}

void tst_HRPacing::delay_followsRateBacklogAndClock()
{
    QFETCH(quint64, displayed);
    QFETCH(quint64, position);
    QFETCH(double, rate);
    QFETCH(QDateTime, last);
    QFETCH(QDateTime, now);
    const HRPacing pacing{ displayed, position, rate, last, now };
    QTEST(pacing.delay(), "delay");
}

QTEST_APPLESS_MAIN(tst_HRPacing)
#include "tst_HRPacing.moc"
