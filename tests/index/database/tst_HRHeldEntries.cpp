// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/database/HRHeldEntries_p.h"

#include <QtTest>

using namespace Hintreels;

class tst_HRHeldEntries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void find_findsTheNewest();
    void find_tellsLocalesApart();
    void add_keepsTheFirstDepthOfAFile();
    void take_leavesNothing();
};

void tst_HRHeldEntries::find_findsTheNewest()
{
    HRHeldEntries held;
    QVERIFY(!held.find("pen", "C"));
    held.add({ "pen", "C", "/a.xml", 1 });
    held.add({ "line", "C", "/a.xml", 1 });
    held.add({ "pen", "C", "/b.xml", 2 });
    QCOMPARE(held.find("pen", "C")->filePath, QString("/b.xml"));
    QCOMPARE(held.find("pen", "C")->depth, 2);
    QCOMPARE(held.find("line", "C")->filePath, QString("/a.xml"));
    QCOMPARE(held.keys(), QStringList({ "pen", "line" }));
}

void tst_HRHeldEntries::find_tellsLocalesApart()
{
    HRHeldEntries held;
    held.add({ "pen", "de_DE", "/a.xml", 1 });
    held.add({ "pen", "en_US", "/b.xml", 1 });
    QCOMPARE(held.find("pen", "de_DE")->filePath, QString("/a.xml"));
    QCOMPARE(held.find("pen", "en_US")->filePath, QString("/b.xml"));
    QVERIFY(!held.find("pen", "C"));
    QCOMPARE(held.keys(), QStringList({ "pen", "pen" }));
}

void tst_HRHeldEntries::add_keepsTheFirstDepthOfAFile()
{
    HRHeldEntries held;
    held.add({ "pen", "C", "/a.xml", 2 });
    held.add({ "pen", "C", "/a.xml", 1 });
    held.add({ "line", "C", "/a.xml", 1 });
    QCOMPARE(held.find("pen", "C")->depth, 2);
    QCOMPARE(held.find("line", "C")->depth, 2);
}

void tst_HRHeldEntries::take_leavesNothing()
{
    HRHeldEntries held;
    held.add({ "pen", "C", "/a.xml", 2 });
    QVERIFY(!held.isEmpty());
    QCOMPARE(held.take().size(), size_t(1));
    QVERIFY(held.isEmpty());
    QVERIFY(!held.find("pen", "C"));
    held.add({ "line", "C", "/a.xml", 1 });
    QCOMPARE(held.find("line", "C")->depth, 1);
}

QTEST_GUILESS_MAIN(tst_HRHeldEntries)
#include "tst_HRHeldEntries.moc"
