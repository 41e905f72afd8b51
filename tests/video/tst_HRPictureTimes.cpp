// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRPictureTimes_p.h"

#include <QtTest>

using namespace Hintreels;

namespace {

using Times = QVector<double>;

constexpr double none = std::numeric_limits<double>::quiet_NaN();
constexpr double period = 0.1; // seconds

HRPictureTimes timesOf(const Times &starts, double lastLength = none)
{
    HRPictureTimes times;
    for (int i = 0; i < starts.size(); ++i)
        times.append({ starts[i], i + 1 == starts.size() ? lastLength : none }, period);
    return times;
}

/// When each picture is shown, and at the end when the last one is no longer, to the millisecond.
QVector<int> shown(const HRPictureTimes &times)
{
    QVector<int> milliseconds;
    for (size_t i = 0; i < times.count(); ++i)
        milliseconds.append(qRound(1000 * times.start(i)));
    milliseconds.append(qRound(1000 * times.length()));
    return milliseconds;
}

} // namespace

class tst_HRPictureTimes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shownFor_isOnePeriod_whereTheFileMakesNoSense_data();
    void shownFor_isOnePeriod_whereTheFileMakesNoSense();
    void append_followsTheFile_data();
    void append_followsTheFile();
    void end_isTheNextStart();
    void indexAt_findsThePictureOnShow_data();
    void indexAt_findsThePictureOnShow();
    void clear_startsAnew();
};

void tst_HRPictureTimes::shownFor_isOnePeriod_whereTheFileMakesNoSense_data()
{
    constexpr double endless = std::numeric_limits<double>::infinity();
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("end");
    QTest::addColumn<double>("seconds");
    QTest::newRow("forward") << 1.0 << 1.5 << 0.5;
    QTest::newRow("before zero") << -2.0 << -0.5 << 1.5;
    QTest::newRow("shorter than a period") << 1.0 << 1.001 << 0.001;
    QTest::newRow("ten seconds") << 0.0 << 10.0 << 10.0;
    QTest::newRow("longer than ten seconds") << 0.0 << 10.001 << period;
    QTest::newRow("back") << 1.0 << 0.5 << period;
    QTest::newRow("the same") << 1.0 << 1.0 << period;
    QTest::newRow("no start") << none << 1.0 << period;
    QTest::newRow("no end") << 1.0 << none << period;
    QTest::newRow("endless") << 0.0 << endless << period;
}

void tst_HRPictureTimes::shownFor_isOnePeriod_whereTheFileMakesNoSense()
{
    QFETCH(double, start);
    QFETCH(double, end);
    QFETCH(double, seconds);
    QVERIFY(qAbs(shownFor(start, end, period) - seconds) < 1e-9);
}

void tst_HRPictureTimes::append_followsTheFile_data()
{
    QTest::addColumn<Times>("starts");
    QTest::addColumn<double>("lastLength");
    QTest::addColumn<QVector<int>>("milliseconds");
    using Shown = QVector<int>;
    QTest::newRow("none") << Times{} << none << Shown{ 0 };
    QTest::newRow("one of no length") << Times{ 0 } << none << Shown{ 0, 100 };
    QTest::newRow("varying") << Times{ 0, 0.05, 1.05 } << 2.0 << Shown{ 0, 50, 1050, 3050 };
    QTest::newRow("beginning later") << Times{ 7, 8 } << 0.5 << Shown{ 0, 1000, 1500 };
    QTest::newRow("going back") << Times{ 0, 1, 0.5, 0.8 } << 0.2
                                << Shown{ 0, 1000, 1100, 1400, 1600 };
    QTest::newRow("one missing") << Times{ 0, none, 3 } << 0.2 << Shown{ 0, 100, 200, 400 };
    QTest::newRow("all missing") << Times{ none, none, none } << none << Shown{ 0, 100, 200, 300 };
    QTest::newRow("standing still") << Times{ 0, 60, 61 } << 60.0 << Shown{ 0, 100, 1100, 1200 };
}

void tst_HRPictureTimes::append_followsTheFile()
{
    QFETCH(Times, starts);
    QFETCH(double, lastLength);
    QTEST(shown(timesOf(starts, lastLength)), "milliseconds");
}

// Until the next picture is known it ends when the file says.
void tst_HRPictureTimes::end_isTheNextStart()
{
    HRPictureTimes times;
    times.append({ 0.0, 3.0 }, period);
    QCOMPARE(times.end(0), 3.0);
    times.append({ 2.0, 1.0 }, period);
    QCOMPARE(times.end(0), 2.0);
    QCOMPARE(times.end(1), 3.0);
}

void tst_HRPictureTimes::indexAt_findsThePictureOnShow_data()
{
    QTest::addColumn<Times>("starts");
    QTest::addColumn<double>("seconds");
    QTest::addColumn<int>("index");
    const Times three{ 0, 0.5, 2 };
    QTest::newRow("none") << Times{} << 1.0 << 0;
    QTest::newRow("before the first") << three << -1.0 << 0;
    QTest::newRow("at the first") << three << 0.0 << 0;
    QTest::newRow("just before the second") << three << 0.499 << 0;
    QTest::newRow("at the second") << three << 0.5 << 1;
    QTest::newRow("in the last") << three << 2.05 << 2;
    QTest::newRow("beyond the last") << three << 99.0 << 2;
    QTest::newRow("not a number") << three << none << 2;
}

void tst_HRPictureTimes::indexAt_findsThePictureOnShow()
{
    QFETCH(Times, starts);
    QFETCH(double, seconds);
    QTEST(int(timesOf(starts).indexAt(seconds)), "index");
}

void tst_HRPictureTimes::clear_startsAnew()
{
    HRPictureTimes times = timesOf({ 5, 6 });
    times.clear();
    times.append({ 1.0, 0.25 }, period);
    QCOMPARE(shown(times), (QVector<int>{ 0, 250 }));
}

QTEST_APPLESS_MAIN(tst_HRPictureTimes)
#include "tst_HRPictureTimes.moc"
