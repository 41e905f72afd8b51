// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRSwings_p.h"

#include <QtTest>

using namespace Hintreels;

using Values = QVector<int>;

class tst_HRSwings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void follow_countsTurns_data();
    void follow_countsTurns();
    void countSince_forgetsWhatIsPast();
};

void tst_HRSwings::follow_countsTurns_data()
{
    QTest::addColumn<Values>("values"); // in hundredths, a step for each tenth of a second
    QTest::addColumn<int>("changes");
    QTest::newRow("nothing") << Values{} << 0;
    QTest::newRow("one value") << Values{ 50 } << 0;
    QTest::newRow("steady") << Values{ 50, 50, 50 } << 0;
    QTest::newRow("up") << Values{ 10, 90 } << 1;
    QTest::newRow("down") << Values{ 90, 10 } << 1;
    QTest::newRow("up by the least step") << Values{ 10, 20 } << 1;
    QTest::newRow("up by less") << Values{ 10, 19 } << 0;
    QTest::newRow("up bit by bit") << Values{ 10, 14, 18, 22 } << 1;
    QTest::newRow("on and on up") << Values{ 10, 20, 30, 40, 50 } << 1;
    QTest::newRow("up and down") << Values{ 10, 20, 30, 20, 10 } << 2;
    QTest::newRow("since the peak, not since where it counted")
        << Values{ 10, 20, 30, 21, 20 } << 2;
    QTest::newRow("back and forth") << Values{ 10, 90, 10, 90, 10 } << 4;
    QTest::newRow("trembling") << Values{ 50, 55, 50, 55, 50 } << 0;
    QTest::newRow("between high values") << Values{ 80, 95, 80, 95 } << 0;
    QTest::newRow("down to where it counts") << Values{ 80, 95, 79, 95, 79 } << 3;
}

void tst_HRSwings::follow_countsTurns()
{
    QFETCH(Values, values);
    HRSwings swings;
    int changes = 0;
    double seconds = 0.0;
    for (int value : qAsConst(values)) {
        const float part = float(value) / 100;
        changes += swings.follow(part, value < 80, 0.0999F, seconds += 0.1) ? 1 : 0;
    }
    QTEST(changes, "changes");
    QCOMPARE(swings.countSince(0.0), changes);
}

void tst_HRSwings::countSince_forgetsWhatIsPast()
{
    HRSwings swings;
    for (int i = 0; i < 30; ++i)
        swings.follow(float(i % 2), true, 0.5F, i * 0.25); // the first change comes at 0.25
    QCOMPARE(swings.countSince(6.25), 4);
    QCOMPARE(swings.countSince(7.0), 1);
    QCOMPARE(swings.countSince(7.25), 0);
}

QTEST_APPLESS_MAIN(tst_HRSwings)
#include "tst_HRSwings.moc"
