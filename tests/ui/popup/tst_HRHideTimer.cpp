// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRHideTimer_p.h"

#include <QTimer>
#include <QtTest>

#include <limits>
#include <optional>

using namespace Hintreels;

namespace {

/// Moved by hand; notes when the time was out.
class HandClock : public HRHideClock
{
public:
    void start(int milliseconds) override { m_due = m_now + milliseconds; }
    void stop() override { m_due.reset(); }
    bool isRunning() const override { return m_due.has_value(); }

    void advance(int milliseconds)
    {
        m_now += milliseconds;
        if (!m_due || *m_due > m_now)
            return;
        timeOuts.append(*m_due);
        m_due.reset();
    }

    QVector<int> timeOuts; // in ms from the start

private:
    int m_now = 0;
    std::optional<int> m_due;
};

struct Fixture
{
    void perform(const QString &step)
    {
        if (step == "restart")
            timer.restart();
        else if (step == "stop")
            timer.stop();
        else if (step.startsWith("decide"))
            timer.decide(step == "decide: near");
        else if (step.startsWith("pointer"))
            timer.follow(step == "pointer near");
        else
            clock.advance(step.toInt());
    }

    double delay = 1000;
    HandClock clock;
    HRHideTimer timer{ clock, [this] { return delay; } };
};

} // namespace

class tst_HRHideTimer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void time_runsOut_whilePointerIsAway_data();
    void time_runsOut_whilePointerIsAway();
    void restart_obeysDelay_data();
    void restart_obeysDelay();
    void timerClock_isTheTimer();
};

void tst_HRHideTimer::time_runsOut_whilePointerIsAway_data()
{
    QTest::addColumn<QStringList>("steps"); // a number lets as many milliseconds pass
    QTest::addColumn<QVector<int>>("timeOuts");
    const QVector<int> never;
    QTest::newRow("nothing has started it") << QStringList{ "5000" } << never;
    QTest::newRow("leaves") << QStringList{ "pointer away", "999", "1" } << QVector<int>{ 1000 };
    QTest::newRow("is back in time")
        << QStringList{ "pointer away", "999", "pointer near", "5000" } << never;
    QTest::newRow("moves on outside, which changes nothing")
        << QStringList{ "pointer away", "600", "pointer away", "400" } << QVector<int>{ 1000 };
    QTest::newRow("moves inside") << QStringList{ "pointer near", "5000" } << never;
    QTest::newRow("leaves twice") << QStringList{ "pointer away", "600", "pointer near",
        "pointer away", "999", "1" }
                                  << QVector<int>{ 1600 };
    QTest::newRow("decided anew outside, which starts it anew")
        << QStringList{ "decide: away", "600", "decide: away", "999", "1" } << QVector<int>{ 1600 };
    QTest::newRow("decided anew inside")
        << QStringList{ "decide: away", "600", "decide: near", "5000" } << never;
    QTest::newRow("started anew") << QStringList{ "restart", "600", "restart", "999", "1" }
                                  << QVector<int>{ 1600 };
    QTest::newRow("stopped") << QStringList{ "restart", "stop", "5000" } << never;
    QTest::newRow("runs out once")
        << QStringList{ "restart", "1000", "5000" } << QVector<int>{ 1000 };
}

void tst_HRHideTimer::time_runsOut_whilePointerIsAway()
{
    QFETCH(QStringList, steps);
    Fixture f;
    for (const QString &step : qAsConst(steps))
        f.perform(step);
    QTEST(f.clock.timeOuts, "timeOuts");
}

void tst_HRHideTimer::restart_obeysDelay_data()
{
    QTest::addColumn<double>("delay");
    QTest::addColumn<int>("timeOut");
    QTest::newRow("fraction") << 80.9 << 80;
    QTest::newRow("less than one") << 0.5 << 0;
    QTest::newRow("none") << 0.0 << -1;
    QTest::newRow("negative") << -1.5 << -1;
    QTest::newRow("not a number") << qQNaN() << -1;
    QTest::newRow("beyond all numbers") << qInf() << std::numeric_limits<int>::max();
}

void tst_HRHideTimer::restart_obeysDelay()
{
    QFETCH(double, delay);
    QFETCH(int, timeOut);
    Fixture f;
    f.timer.restart();
    f.delay = delay;

    f.timer.restart();

    QCOMPARE(f.timer.isRunning(), timeOut >= 0);
    f.clock.advance(std::numeric_limits<int>::max());
    QCOMPARE(f.clock.timeOuts, timeOut >= 0 ? QVector<int>{ timeOut } : QVector<int>());
}

void tst_HRHideTimer::timerClock_isTheTimer()
{
    QTimer timer;
    HRQTimerClock clock(&timer);
    QVERIFY(timer.isSingleShot());
    QVERIFY(!clock.isRunning());
    clock.start(60000);
    QVERIFY(clock.isRunning());
    QVERIFY(timer.isActive());
    QCOMPARE(timer.interval(), 60000);
    clock.stop();
    QVERIFY(!timer.isActive());
}

QTEST_GUILESS_MAIN(tst_HRHideTimer)
#include "tst_HRHideTimer.moc"
