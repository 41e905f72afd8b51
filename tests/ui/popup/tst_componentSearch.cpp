// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "support/TestPackage.h"
#include "ui/popup/componentSearch_p.h"

#include <QtTest>

using namespace Hintreels;

class tst_componentSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chosenByContent_looksNearby_data();
    void chosenByContent_looksNearby();
    void chosenByContent_isNull_withoutContent();
    void firstExisting_takesTheFirst_data();
    void firstExisting_takesTheFirst();
};

void tst_componentSearch::chosenByContent_looksNearby_data()
{
    QTest::addColumn<QString>("own");
    QTest::addColumn<QString>("parents");
    QTest::addColumn<QString>("chosen");
    const QString absent;
    QTest::newRow("own attribute") << "own"
                                   << "parent"
                                   << "own";
    QTest::newRow("parent's attribute") << absent << "parent"
                                        << "parent";
    QTest::newRow("an empty own one hides the parent's") << ""
                                                         << "parent"
                                                         << "";
    QTest::newRow("neither") << absent << absent << absent;
}

void tst_componentSearch::chosenByContent_looksNearby()
{
    QFETCH(QString, own);
    QFETCH(QString, parents);
    HRXmlElement grandparent;
    grandparent.setAttribute("ui", "grandparent");
    auto *parent = new HRXmlElement(&grandparent);
    auto *content = new HRXmlElement(parent);
    if (!parents.isNull())
        parent->setAttribute("ui", parents);
    if (!own.isNull())
        content->setAttribute("ui", own);
    QTEST(chosenByContent(content, "ui"), "chosen");
}

void tst_componentSearch::chosenByContent_isNull_withoutContent()
{
    QVERIFY(chosenByContent(nullptr, "ui").isNull());
    QObject other;
    QVERIFY(chosenByContent(new HRXmlElement(&other), "ui").isNull());
}

void tst_componentSearch::firstExisting_takesTheFirst_data()
{
    QTest::addColumn<QStringList>("candidates");
    QTest::addColumn<QString>("relativePath");
    QTest::addColumn<QString>("found");
    const QStringList both{ "a", "b" };
    QTest::newRow("in both") << both << "both.txt"
                             << "a/both.txt";
    QTest::newRow("in the other order") << QStringList{ "b", "a" } << "both.txt"
                                        << "b/both.txt";
    QTest::newRow("in the second only") << both << "second.txt"
                                        << "b/second.txt";
    QTest::newRow("in none") << both << "none.txt"
                             << "";
    QTest::newRow("a candidate itself") << QStringList{ "none", "b" } << ""
                                        << "b";
    QTest::newRow("no candidates") << QStringList{} << "both.txt"
                                   << "";
}

void tst_componentSearch::firstExisting_takesTheFirst()
{
    QFETCH(QStringList, candidates);
    QFETCH(QString, relativePath);
    QFETCH(QString, found);
    const TestPackages files;
    for (const char *file : { "a/both.txt", "b/both.txt", "b/second.txt" })
        files.write(file, "text");
    for (QString &candidate : candidates)
        candidate.prepend(files.path() + '/');
    const QString file = firstExisting(candidates, relativePath);
    QCOMPARE(file, found.isEmpty() ? QString() : files.path() + '/' + found);
    QCOMPARE(file.isNull(), found.isEmpty());
}

QTEST_APPLESS_MAIN(tst_componentSearch)
#include "tst_componentSearch.moc"
