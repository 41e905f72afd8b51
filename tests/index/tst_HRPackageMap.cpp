// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/HRPackageMap_p.h"
#include "support/TestPackage.h"

#include <QtTest>

using namespace Hintreels;

class tst_HRPackageMap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void name_isTheInnermostPackages_data();
    void name_isTheInnermostPackages();
    void paths_keepTheirOrder_eachOnce();
    void searchList_isSplit_data();
    void searchList_isSplit();
};

void tst_HRPackageMap::name_isTheInnermostPackages_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("name");
    QTest::newRow("file") << "A.hintreels/Control/x.xml"
                          << "hintreels"
                          << "A";
    QTest::newRow("package itself") << "A.hintreels"
                                    << "hintreels"
                                    << "A";
    QTest::newRow("file that is not there") << "A.hintreels/no/x.xml"
                                            << "hintreels"
                                            << "A";
    QTest::newRow("package in a package") << "A.hintreels/B.hintreels/y"
                                          << "hintreels"
                                          << "B";
    QTest::newRow("dots in the name") << "C.1.hintreels/z"
                                      << "hintreels"
                                      << "C.1";
    QTest::newRow("a file with the suffix") << "A.hintreels/f.hintreels"
                                            << "hintreels"
                                            << "A";
    QTest::newRow("other suffix") << "D.tips/Control/x.xml"
                                  << "tips"
                                  << "D";
    QTest::newRow("case matters") << "A.hintreels/Control/x.xml"
                                  << "Hintreels"
                                  << "";
    QTest::newRow("no package") << "plain/x.xml"
                                << "hintreels"
                                << "";
}

void tst_HRPackageMap::name_isTheInnermostPackages()
{
    QFETCH(QString, path);
    QFETCH(QString, suffix);
    const TestPackages packages;
    packages.write("A.hintreels/Control/x.xml", "");
    packages.write("A.hintreels/B.hintreels/y", "");
    packages.write("A.hintreels/f.hintreels", "");
    packages.write("C.1.hintreels/z", "");
    packages.write("D.tips/Control/x.xml", "");
    QTEST(packageNameOf(packages.path() + '/' + path, suffix), "name");
    QCOMPARE(packageNameOf("/", suffix), QString());
    QCOMPARE(packageNameOf("", suffix), QString());
}

void tst_HRPackageMap::paths_keepTheirOrder_eachOnce()
{
    HRPackageMap map;
    map.add("A", "/2/A.hintreels");
    map.add("A", "/1/A.hintreels");
    map.add("A", "/2/A.hintreels");
    QCOMPARE(map.paths("A"), QStringList({ "/2/A.hintreels", "/1/A.hintreels" }));
    QCOMPARE(map.paths("a"), QStringList());
}

void tst_HRPackageMap::searchList_isSplit_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QStringList>("paths");
    QTest::newRow("one") << "B" << QStringList({ "/B" });
    QTest::newRow("order of the list") << "C,B" << QStringList({ "/C", "/B" });
    QTest::newRow("runs of separators") << " B, ;\n\tC " << QStringList({ "/B", "/C" });
    QTest::newRow("unknown name") << "X;B" << QStringList({ "/B" });
    QTest::newRow("twice") << "B B" << QStringList({ "/B", "/B" });
}

void tst_HRPackageMap::searchList_isSplit()
{
    QFETCH(QString, search);
    HRPackageMap map;
    map.add("B", "/B");
    map.add("C", "/C");
    QTEST(map.pathsOfSearchList(search), "paths");
}

QTEST_GUILESS_MAIN(tst_HRPackageMap)
#include "tst_HRPackageMap.moc"
