// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/HRPackageDepth_p.h"
#include "support/TestPackage.h"

#include <QDir>
#include <QFile>
#include <QtTest>

using namespace Hintreels;

class tst_HRPackageDepth : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void levels_areCounted_data();
    void levels_areCounted();
    void levels_countFromTheLink_whenItLeadsBackToThePackage();
    void levels_areCounted_whenThePackageIsNamedByALink();
    void levels_areCounted_whenThePackageIsTheRoot();
    void levels_ofCanonicalPaths_areCounted_data();
    void levels_ofCanonicalPaths_areCounted();
    void levels_areRemembered_forOneDirectoryAndPackage();
};

namespace {

constexpr int Outside = -1;

} // namespace

void tst_HRPackageDepth::levels_areCounted_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("package");
    QTest::addColumn<int>("depth");
    QTest::newRow("directly in it") << "A.hintreels/x.xml"
                                    << "A.hintreels" << 1;
    QTest::newRow("in its control directory") << "A.hintreels/Control/c.xml"
                                              << "A.hintreels" << 2;
    QTest::newRow("trailing slash") << "A.hintreels/Control/c.xml"
                                    << "A.hintreels/" << 2;
    QTest::newRow("roundabout") << "A.hintreels/../A.hintreels/x.xml"
                                << "A.hintreels" << 1;
    QTest::newRow("another package") << "A.hintreels/x.xml"
                                     << "B.hintreels" << Outside;
    QTest::newRow("beside it") << "A.hintreels/../B.hintreels/y.xml"
                               << "A.hintreels" << Outside;
    QTest::newRow("longer name") << "A.hintreels/x.xml"
                                 << "A.hint" << Outside;
    QTest::newRow("no such package") << "C.hintreels/x.xml"
                                     << "C.hintreels" << Outside;
    QTest::newRow("no such directory") << "A.hintreels/no/x.xml"
                                       << "A.hintreels" << Outside;
}

void tst_HRPackageDepth::levels_areCounted()
{
    QFETCH(QString, file);
    QFETCH(QString, package);
    const TestPackages packages;
    packages.write("A.hintreels/x.xml", "");
    packages.write("A.hintreels/Control/c.xml", "");
    packages.write("B.hintreels/y.xml", "");
    const QString base = packages.path() + '/';
    QTEST(levelsBelowPackage(base + file, base + package).value_or(Outside), "depth");
    QVERIFY(levelsBelowPackage(base + "A.hintreels/x.xml", "/"));
}

void tst_HRPackageDepth::levels_countFromTheLink_whenItLeadsBackToThePackage()
{
    const TestPackages packages;
    packages.write("A.hintreels/x.xml", "");
    const QString package = packages.path() + "/A.hintreels";
    QVERIFY(QFile::link(package, package + "/loop"));
    QCOMPARE(levelsBelowPackage(package + "/loop/x.xml", package).value_or(Outside), 1);
}

void tst_HRPackageDepth::levels_areCounted_whenThePackageIsNamedByALink()
{
    const TestPackages packages;
    packages.write("A.hintreels/Control/x.xml", "");
    const QString link = packages.path() + "/link";
    QVERIFY(QFile::link(packages.path() + "/A.hintreels", link));
    QCOMPARE(levelsBelowPackage(link + "/Control/x.xml", link).value_or(Outside), 2);
}

void tst_HRPackageDepth::levels_areCounted_whenThePackageIsTheRoot()
{
    const TestPackages packages;
    const QString file = packages.write("x.xml", "");
    const int levels = file.count('/');
    for (const bool isCanonical : { false, true })
        QCOMPARE(HRPackageDepth().levels(file, "/", isCanonical).value_or(Outside), levels);
    QCOMPARE(HRPackageDepth().levels("/x.xml", "/", true).value_or(Outside), 1);
}

void tst_HRPackageDepth::levels_ofCanonicalPaths_areCounted_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("package");
    QTest::addColumn<int>("depth");
    QTest::newRow("directly in it") << "/A/x.xml"
                                    << "/A" << 1;
    QTest::newRow("two levels") << "/A/Control/x.xml"
                                << "/A" << 2;
    QTest::newRow("another package") << "/A/x.xml"
                                     << "/B" << Outside;
    QTest::newRow("longer name") << "/AB/x.xml"
                                 << "/A" << Outside;
    QTest::newRow("no directory") << "x.xml"
                                  << "/A" << Outside;
}

// Nobody looks whether they are there.
void tst_HRPackageDepth::levels_ofCanonicalPaths_areCounted()
{
    QFETCH(QString, file);
    QFETCH(QString, package);
    QTEST(HRPackageDepth().levels(file, package, true).value_or(Outside), "depth");
}

void tst_HRPackageDepth::levels_areRemembered_forOneDirectoryAndPackage()
{
    const TestPackages packages;
    packages.write("A.hintreels/Control/x.xml", "");
    const QString outer = packages.path();
    const QString package = outer + "/A.hintreels";
    HRPackageDepth depth;
    QCOMPARE(depth.levels(package + "/Control/x.xml", package).value_or(Outside), 2);
    QCOMPARE(depth.levels(package + "/Control/y.xml", package).value_or(Outside), 2);
    QCOMPARE(depth.levels(package + "/Control/x.xml", outer).value_or(Outside), 3);
    QCOMPARE(depth.levels(package + "/Control/y.xml", outer + "/B").value_or(Outside), Outside);
    QCOMPARE(depth.levels(package + "/x.xml", package).value_or(Outside), Outside);
    packages.write("A.hintreels/x.xml", "");
    QCOMPARE(depth.levels(package + "/x.xml", package).value_or(Outside), 1);
}

QTEST_GUILESS_MAIN(tst_HRPackageDepth)
#include "tst_HRPackageDepth.moc"
