// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/interpolation_p.h"
#include "support/RepeatedSearch.h"

#include <QtTest>

using namespace Hintreels;

using Values = QMap<QString, QVariant>;
Q_DECLARE_METATYPE(Values)

class tst_interpolation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void interpolated_replacesPlaceholders_data();
    void interpolated_replacesPlaceholders();
    void interpolated_agreesWithRepeatedSearch();
    void interpolated_isLinear_whenPlaceholdersAreMany();
};

void tst_interpolation::interpolated_replacesPlaceholders_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Values>("values");
    QTest::addColumn<QString>("expected");

    const Values key{ { "key", "F1" } };
    QTest::newRow("empty") << "" << key << "";
    QTest::newRow("no placeholder") << "100 % of it" << key << "100 % of it";
    QTest::newRow("known") << "Press %(key)s now" << key << "Press F1 now";
    QTest::newRow("at both ends") << "%(key)s%(key)s" << key << "F1F1";
    QTest::newRow("unknown stays") << "Press %(other)s now" << key << "Press %(other)s now";
    QTest::newRow("known behind unknown") << "%(other)s%(key)s" << key << "%(other)sF1";
    QTest::newRow("case matters") << "%(Key)s" << key << "%(Key)s";
    QTest::newRow("blank in name stays") << "%(a b)s" << Values{ { "a b", "x" } } << "%(a b)s";
    QTest::newRow("dot in name stays") << "%(a.b)s" << Values{ { "a.b", "x" } } << "%(a.b)s";
    QTest::newRow("letter beyond ASCII stays") << "%(ä)s" << Values{ { "ä", "x" } } << "%(ä)s";
    QTest::newRow("empty name stays") << "%()s" << Values{ { "", "x" } } << "%()s";
    QTest::newRow("all name characters") << "%(-_aZ09)s" << Values{ { "-_aZ09", "x" } } << "x";
    for (const char c : { 'a', 'z', 'A', 'Z', '0', '9', '-', '_' })
        QTest::addRow("name of %c", c)
            << QString("%(%1)s").arg(c) << Values{ { QChar(c), "x" } } << "x";
    for (const char c : { '`', '{', '@', '[', '/', ':', ',', '.', '^', '(' }) {
        QTest::addRow("name of %c stays", c)
            << QString("%(%1)s").arg(c) << Values{ { QChar(c), "x" } } << QString("%(%1)s").arg(c);
    }
    QTest::newRow("unfinished") << "%(key) %(key" << key << "%(key) %(key";
    QTest::newRow("percent before") << "%%(key)s" << key << "%F1";
    QTest::newRow("empty value removes") << "a%(e)sb" << Values{ { "e", "" } } << "ab";
    QTest::newRow("null value stays") << "%(n)s" << Values{ { "n", QString() } } << "%(n)s";
    QTest::newRow("invalid value stays") << "%(n)s" << Values{ { "n", QVariant() } } << "%(n)s";
    QTest::newRow("number") << "%(n)s" << Values{ { "n", 42 } } << "42";
    QTest::newRow("value with placeholder")
        << "%(a)s" << Values{ { "a", "%(b)s" }, { "b", "x" } } << "x";
    QTest::newRow("value begins a placeholder that the text ends")
        << "%(a)skey)s" << Values{ { "a", "<%(" }, { "key", "F1" } } << "<F1";
    QTest::newRow("value ends in percent")
        << "%(a)s(key)s" << Values{ { "a", "%" }, { "key", "F1" } } << "F1";
    QTest::newRow("percent before the match is past")
        << "%%(a)s" << Values{ { "a", "(key)s" }, { "key", "F1" } } << "%(key)s";
    QTest::newRow("what a value completes before itself is past")
        << "%(a)s%(b)s" << Values{ { "a", "%(" }, { "b", "b)s" } } << "%(b)s";
    QTest::newRow("markers of arg stay") << "%1 %(key)s" << Values{ { "key", "%2" } } << "%1 %2";
}

void tst_interpolation::interpolated_replacesPlaceholders()
{
    QFETCH(QString, text);
    QFETCH(Values, values);
    QTEST(interpolated(text, values), "expected");
}

void tst_interpolation::interpolated_agreesWithRepeatedSearch()
{
    const QStringList pieces{ "%", "(", ")s", "a", "b", "c", "%(a)s", "%(b)s", "%(c)s", "x" };
    QRandomGenerator random(1);
    const auto someText = [&](const QStringList &from, int most) {
        QString text("");
        for (int count = random.bounded(most); count > 0; --count)
            text += from.at(random.bounded(from.size()));
        return text;
    };
    for (int round = 0; round < 3000; ++round) {
        // Each value holds only placeholders of later names, so that the expansion ends.
        const Values values{ { "a", someText({ "%(b)s", "%", "(", "x", ")s", "%(" }, 4) },
            { "b", someText({ "(x", ")s", "y", "%" }, 3) } };
        const QString text = someText(pieces, 12);
        QCOMPARE(interpolated(text, values), searchedRepeatedly(text, values));
    }
}

void tst_interpolation::interpolated_isLinear_whenPlaceholdersAreMany()
{
    constexpr int count = 200000;
    const Values values{ { "a", "%(b)s" }, { "b", "x" } };
    QCOMPARE(interpolated(QString("%(a)s").repeated(count), values), QString(count, 'x'));
    QCOMPARE(interpolated(QString("%(").repeated(count), values), QString("%(").repeated(count));
}

QTEST_APPLESS_MAIN(tst_interpolation)
#include "tst_interpolation.moc"
