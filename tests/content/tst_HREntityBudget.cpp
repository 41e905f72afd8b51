// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HREntityBudget_p.h"

#include <QtTest>

using namespace Hintreels;

namespace {

const int limit = 8 * 1024 * 1024;

bool covers(HREntityBudget &budget, const QString &text)
{
    return budget.covers(text);
}

} // namespace

class tst_HREntityBudget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void covers_upToTheLimit_data();
    void covers_upToTheLimit();
    void covers_countsEveryReference();
    void covers_followsReferences_whateverTheOrder();
    void covers_refusesCycles_onlyWhenReferredTo();
    void covers_passesOverWhatIsNoReference_data();
    void covers_passesOverWhatIsNoReference();
    void covers_takesLongChains();
    void covers_takesManyWaysToTheSameEntity();
    void spend_endsAtTheLimit();
    void spend_passesOverUnknownNames();
    void declare_endsAt4096();
    void declare_endsSooner_whenValuesAreLong_data();
    void declare_endsSooner_whenValuesAreLong();
};

void tst_HREntityBudget::covers_upToTheLimit_data()
{
    QTest::addColumn<int>("documentSize");
    QTest::addColumn<int>("entitySize");
    QTest::addColumn<bool>("isCovered");

    QTest::newRow("small document at 8 MiB") << 10 << limit << true;
    QTest::newRow("small document above 8 MiB") << 10 << limit + 1 << false;
    QTest::newRow("large document at 100 times") << 100000 << 10000000 << true;
    QTest::newRow("large document above 100 times") << 100000 << 10000001 << false;
}

void tst_HREntityBudget::covers_upToTheLimit()
{
    QFETCH(int, documentSize);
    QFETCH(int, entitySize);
    HREntityBudget budget(documentSize);
    budget.declare("e", QString(entitySize, 'x'));
    QTEST(covers(budget, "&e;"), "isCovered");
}

void tst_HREntityBudget::covers_countsEveryReference()
{
    HREntityBudget budget(10);
    budget.declare("e", QString(1024, 'x'));
    QVERIFY(covers(budget, QString("&e;").repeated(8 * 1024)));
    QVERIFY(!covers(budget, QString("&e;").repeated(8 * 1024 + 1)));
}

void tst_HREntityBudget::covers_followsReferences_whateverTheOrder()
{
    HREntityBudget budget(10);
    budget.declare("a", "&b;&b;");
    budget.declare("b", "&c;");
    budget.declare("c", QString(limit / 2 - 3, 'x')); // with "&c;" in b half the limit
    QVERIFY(covers(budget, "&b;&b;"));
    QVERIFY(!covers(budget, "&a;")); // "&b;&b;" itself comes on top
}

void tst_HREntityBudget::covers_refusesCycles_onlyWhenReferredTo()
{
    HREntityBudget budget(10);
    budget.declare("a", "&b;");
    budget.declare("b", "&a;");
    budget.declare("self", "&self;");
    budget.declare("above", "&a;");
    budget.declare("apart", "x");
    budget.declare("also", "y");
    QVERIFY(covers(budget, "&apart;&also;"));
    QVERIFY(!covers(budget, "&a;"));
    QVERIFY(!covers(budget, "&self;"));
    QVERIFY(!covers(budget, "&above;"));
    QVERIFY(covers(budget, "&apart;"));
}

void tst_HREntityBudget::covers_passesOverWhatIsNoReference_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << "";
    QTest::newRow("plain text") << "e;";
    QTest::newRow("another entity") << "&f;&amp;&#101;";
    QTest::newRow("reference that is not closed") << "&e";
    QTest::newRow("ampersand at the end") << "&";
    QTest::newRow("reference that starts again") << "&e&f;";
    QTest::newRow("parameter reference") << "%e;";
}

void tst_HREntityBudget::covers_passesOverWhatIsNoReference()
{
    QFETCH(QString, text);
    HREntityBudget budget(10);
    budget.declare("e", QString(limit + 1, 'x'));
    QVERIFY(covers(budget, text));
    QVERIFY(!covers(budget, text + "&e;"));
}

void tst_HREntityBudget::covers_takesLongChains()
{
    HREntityBudget budget(10);
    for (int i = 0; i < 100000; ++i)
        budget.declare(QString::number(i), QString("&%1;").arg(i + 1));
    QVERIFY(covers(budget, "&0;"));
}

void tst_HREntityBudget::covers_takesManyWaysToTheSameEntity()
{
    // Each entity refers to all after it: the number of ways doubles with each, and so does the
    // size. Sizes far beyond any integer must not wrap around.
    HREntityBudget budget(10);
    for (int i = 0; i < 500; ++i) {
        QString value;
        for (int j = i + 1; j <= 500; ++j)
            value += QString("&%1;").arg(j);
        budget.declare(QString::number(i), value);
    }
    budget.declare("500", "x");
    QVERIFY(covers(budget, "&495;"));
    QVERIFY(!covers(budget, "&0;"));
}

void tst_HREntityBudget::spend_endsAtTheLimit()
{
    HREntityBudget budget(10);
    budget.declare("half", QString(limit / 2, 'x'));
    budget.declare("one", "x");
    QVERIFY(budget.spend("half"));
    QVERIFY(budget.spend("half"));
    QVERIFY(!budget.spend("one"));
}

void tst_HREntityBudget::spend_passesOverUnknownNames()
{
    HREntityBudget budget(10);
    QVERIFY(budget.spend("unknown"));
}

void tst_HREntityBudget::declare_endsAt4096()
{
    HREntityBudget budget(10);
    for (int i = 0; i < 4096; ++i)
        QVERIFY(budget.declare(QString::number(i), QString()));
    QVERIFY(budget.declare("7", QString()));
    QVERIFY(!budget.declare("one more", QString()));
}

void tst_HREntityBudget::declare_endsSooner_whenValuesAreLong_data()
{
    QTest::addColumn<int>("documentSize");
    QTest::addColumn<int>("valueSize");
    QTest::addColumn<int>("entities");
    QTest::newRow("short values") << 600000 << 128 << 4096;
    QTest::newRow("a letter more") << 10 << 129 << 4080;
    QTest::newRow("long values") << 4200000 << 1024 << 2025;
    QTest::newRow("a thousand, however long") << 16500000 << 16384 << 1003;
}

void tst_HREntityBudget::declare_endsSooner_whenValuesAreLong()
{
    QFETCH(int, documentSize);
    QFETCH(int, valueSize);
    HREntityBudget budget(documentSize);
    const QString value(valueSize, 'x');
    int entities = 0;
    while (budget.declare(QString::number(entities), value))
        ++entities;
    QTEST(entities, "entities");
}

QTEST_GUILESS_MAIN(tst_HREntityBudget)
#include "tst_HREntityBudget.moc"
