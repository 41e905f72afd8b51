// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "FigureTable.h"
#include "report/FigureChart.h"
#include "report/FigureSpread.h"

#include <QtTest>

#include <limits>

Q_DECLARE_METATYPE(Bar)
Q_DECLARE_METATYPE(Result)

namespace {

constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

Result ratio(double baseline, double ours, double most)
{
    return { "a figure", Unit::seconds, true, baseline, ours, ours / baseline, Bar::atMost(most) };
}

Result plain(double ours, const Bar &bar)
{
    return { "a figure", Unit::none, false, 0, ours, ours, bar };
}

FigureTable tableOf(const Result &result)
{
    FigureTable table;
    table.add(result);
    return table;
}

} // namespace

class tst_FigureTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void verdict_followsTheBar_data();
    void verdict_followsTheBar();
    void faults_nameWhatMissesItsBar();
    void faults_nameWhatWasNotMeasured();
    void faults_tellOfAnEmptyTable();
    void json_isReadBack();
    void spread_isMissed_whenOneRunMisses();
    void spread_showsTheMedian();
    void chart_marksWhatMissesItsBar();
    void share_isOneAtTheBar_data();
    void share_isOneAtTheBar();
};

void tst_FigureTable::verdict_followsTheBar_data()
{
    QTest::addColumn<Result>("result");
    QTest::addColumn<bool>("isGood");
    QTest::newRow("below") << ratio(2, 2.9, 1.5) << true;
    QTest::newRow("at the bar") << ratio(2, 3, 1.5) << true;
    QTest::newRow("over") << ratio(2, 3.1, 1.5) << false;
    QTest::newRow("no baseline") << ratio(0, 3, 1.5) << false;
    QTest::newRow("nothing") << ratio(0, 0, 1.5) << false;
    QTest::newRow("at least") << plain(299, Bar::atLeast(299)) << true;
    QTest::newRow("less than that") << plain(298, Bar::atLeast(299)) << false;
    QTest::newRow("between") << plain(1, { 0.9995, 1.0005 }) << true;
    QTest::newRow("below a range") << plain(0.9994, { 0.9995, 1.0005 }) << false;
    QTest::newRow("above a range") << plain(1.0006, { 0.9995, 1.0005 }) << false;
    QTest::newRow("not a number") << plain(NotANumber, { 0.9995, 1.0005 }) << false;
}

void tst_FigureTable::verdict_followsTheBar()
{
    QFETCH(Result, result);
    QTEST(result.isGood(), "isGood");
    QTEST(tableOf(result).faults().isEmpty(), "isGood");
    QTEST(!tableOf(result).markdown().contains("missed"), "isGood");
}

void tst_FigureTable::faults_nameWhatMissesItsBar()
{
    FigureTable table = tableOf(ratio(1, 1, 1.5));
    table.add(ratio(1, 2, 1.5));
    QCOMPARE(table.faults(), QStringList("missed: a figure: 2 where <= 1.5 is good"));
}

void tst_FigureTable::faults_nameWhatWasNotMeasured()
{
    Result result = ratio(1, 1, 1.5);
    result.failure = "cannot open a file";
    const FigureTable table = tableOf(result);
    QVERIFY(!result.isGood());
    QCOMPARE(table.faults(), QStringList("not measured: a figure: cannot open a file"));
    QVERIFY(table.markdown().contains("not measured"));
    QCOMPARE(FigureTable::fromJson(table.json()).faults(), table.faults());
}

void tst_FigureTable::faults_tellOfAnEmptyTable()
{
    QCOMPARE(FigureTable().faults(), QStringList("nothing was measured"));
    QCOMPARE(FigureTable::fromJson("[").faults(), QStringList("nothing was measured"));
}

void tst_FigureTable::json_isReadBack()
{
    FigureTable table = tableOf(ratio(1, 2, 1.5));
    table.add(plain(299, Bar::atLeast(299)));
    table.add(plain(1, { 0.9995, 1.0005 }));
    const FigureTable read = FigureTable::fromJson(table.json());
    QCOMPARE(read.markdown(), table.markdown());
    QCOMPARE(read.faults(), table.faults());
    QCOMPARE(read.results().size(), 3);
}

void tst_FigureTable::spread_isMissed_whenOneRunMisses()
{
    const QVector<FigureTable> runs{ tableOf(ratio(1, 1.4, 1.5)), tableOf(ratio(1, 1.6, 1.5)),
        tableOf(ratio(1, 1.3, 1.5)) };
    QVERIFY(!spreadsOf(runs).first().isGood());
    QVERIFY(markdown(spreadsOf(runs)).contains("missed"));
    QVERIFY(spreadsOf(runs.mid(2)).first().isGood());
    QVERIFY(!markdown(spreadsOf(runs.mid(2))).contains("missed"));
}

void tst_FigureTable::spread_showsTheMedian()
{
    const FigureSpreads spreads = spreadsOf(
        { tableOf(ratio(1, 1.4, 1.5)), tableOf(ratio(1, 1.2, 1.5)), tableOf(ratio(1, 1.3, 1.5)) });
    QCOMPARE(spreads.size(), 1);
    QCOMPARE(spreads.first().middle.value, 1.3);
    QCOMPARE(spreads.first().least, 1.2);
    QCOMPARE(spreads.first().most, 1.4);
}

void tst_FigureTable::chart_marksWhatMissesItsBar()
{
    const FigureSpreads good = spreadsOf({ tableOf(ratio(1, 1.4, 1.5)) });
    const FigureSpreads over = spreadsOf({ tableOf(ratio(1, 1.6, 1.5)) });
    QVERIFY(chart(good).contains("class='good'"));
    QVERIFY(!chart(good).contains("class='missed'"));
    QVERIFY(chart(over).contains("class='missed'"));
}

void tst_FigureTable::share_isOneAtTheBar_data()
{
    QTest::addColumn<Bar>("bar");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("share");
    QTest::newRow("half") << Bar::atMost(3) << 1.5 << 0.5;
    QTest::newRow("at most") << Bar::atMost(3) << 3.0 << 1.0;
    QTest::newRow("at least") << Bar::atLeast(3) << 3.0 << 1.0;
    QTest::newRow("less than least") << Bar::atLeast(3) << 1.5 << 2.0;
    QTest::newRow("in the middle") << Bar{ 1, 3 } << 2.0 << 0.0;
    QTest::newRow("lower end") << Bar{ 1, 3 } << 1.0 << 1.0;
    QTest::newRow("upper end") << Bar{ 1, 3 } << 3.0 << 1.0;
}

void tst_FigureTable::share_isOneAtTheBar()
{
    QFETCH(Bar, bar);
    QFETCH(double, value);
    QTEST(bar.share(value), "share");
}

QTEST_APPLESS_MAIN(tst_FigureTable)
#include "tst_FigureTable.moc"
