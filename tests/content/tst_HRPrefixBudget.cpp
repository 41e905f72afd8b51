// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRPrefixBudget_p.h"

#include <QtTest>

using namespace Hintreels;

namespace {

void enter(HRPrefixBudget &budget, int count, int length)
{
    for (int i = 0; i < count; ++i)
        budget.enter(QString("%1").arg(i, length));
}

/// How many elements may follow, up to a million.
int elementsLeft(HRPrefixBudget &budget)
{
    int elements = 0;
    while (elements < 1000000 && budget.spendElement())
        ++elements;
    return elements;
}

} // namespace

class tst_HRPrefixBudget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void spendElement_isFree_underFewPrefixes_data();
    void spendElement_isFree_underFewPrefixes();
    void spendElement_usesUpTheBudget_underManyPrefixes_data();
    void spendElement_usesUpTheBudget_underManyPrefixes();
    void spendElement_isFreeAgain_whenPrefixesHaveLeft();
    void enter_countsEachPrefixOnce();
    void leave_passesOverWhatIsNotInScope();
};

void tst_HRPrefixBudget::spendElement_isFree_underFewPrefixes_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("length");
    QTest::newRow("none") << 0 << 0;
    QTest::newRow("32 of 64 letters") << 32 << 64;
    QTest::newRow("33 of 50 letters") << 33 << 50;
    QTest::newRow("75 of 5 letters") << 75 << 5;
    QTest::newRow("one of 73,000 letters") << 1 << 73000;
}

void tst_HRPrefixBudget::spendElement_isFree_underFewPrefixes()
{
    QFETCH(int, count);
    QFETCH(int, length);
    HRPrefixBudget budget;
    enter(budget, count, length);
    QCOMPARE(elementsLeft(budget), 1000000);
}

void tst_HRPrefixBudget::spendElement_usesUpTheBudget_underManyPrefixes_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("elements");
    QTest::newRow("33 of 64 letters") << 33 << 64 << 13694;
    QTest::newRow("33 of 60 letters") << 33 << 60 << 14499;
    QTest::newRow("64 of 24 letters, to the last of the budget") << 64 << 24 << 8192;
    QTest::newRow("1,000 of 8 letters") << 1000 << 8 << 67;
    QTest::newRow("20,000 of 5 letters") << 20000 << 5 << 0;
}

void tst_HRPrefixBudget::spendElement_usesUpTheBudget_underManyPrefixes()
{
    QFETCH(int, count);
    QFETCH(int, length);
    HRPrefixBudget budget;
    enter(budget, count, length);
    QTEST(elementsLeft(budget), "elements");
}

void tst_HRPrefixBudget::spendElement_isFreeAgain_whenPrefixesHaveLeft()
{
    HRPrefixBudget budget;
    enter(budget, 1000, 8);
    QVERIFY(budget.spendElement());
    for (int i = 0; i < 968; ++i)
        budget.leave(QString("%1").arg(i, 8));
    QCOMPARE(elementsLeft(budget), 1000000);
}

void tst_HRPrefixBudget::enter_countsEachPrefixOnce()
{
    HRPrefixBudget budget;
    for (int round = 0; round < 100; ++round)
        enter(budget, 32, 64);
    QCOMPARE(elementsLeft(budget), 1000000);
}

void tst_HRPrefixBudget::leave_passesOverWhatIsNotInScope()
{
    HRPrefixBudget budget;
    budget.leave(QString(1000, 'x'));
    enter(budget, 33, 64);
    QVERIFY(elementsLeft(budget) < 1000000);
}

QTEST_APPLESS_MAIN(tst_HRPrefixBudget)
#include "tst_HRPrefixBudget.moc"
