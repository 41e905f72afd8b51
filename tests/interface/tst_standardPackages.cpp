// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "interface/standardPackages_p.h"

#include "interface/HRInterface.h"
#include "support/TestPackage.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtTest>

using namespace Hintreels;

class tst_standardPackages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void packages_areFound_inEveryLayout_data();
    void packages_areFound_inEveryLayout();
    void packages_areFound_throughALink();
    void packages_areNull_whereThereAreNone_data();
    void packages_areNull_whereThereAreNone();
    void library_isTheProgram_thatHasItLinkedIn();
    void packages_ofTheInterface_areTheLibrarys();
};

void tst_standardPackages::packages_areFound_inEveryLayout_data()
{
    QTest::addColumn<QString>("library");
    QTest::addColumn<QString>("prefix");
    QTest::newRow("installed") << "usr/local/lib/libhintreels.so.1"
                               << "usr/local/";
    QTest::newRow("installed by Debian") << "usr/lib/x86_64-linux-gnu/libhintreels.so.1"
                                         << "usr/";
    QTest::newRow("installed, 64 bits") << "usr/lib64/libhintreels.so.1"
                                        << "usr/";
    QTest::newRow("build tree") << "build/dev/src/libhintreels.so.1"
                                << "build/dev/";
    QTest::newRow("subproject") << "build/_deps/hintreels-build/src/libhintreels.so.1"
                                << "build/_deps/hintreels-build/";
    QTest::newRow("AppImage") << "tmp/.mount_host1/usr/lib/libhintreels.so.1"
                              << "tmp/.mount_host1/usr/";
    QTest::newRow("Flatpak") << "app/lib/libhintreels.so.1"
                             << "app/";
    QTest::newRow("linked into a program") << "opt/host/bin/host"
                                           << "opt/host/";
    QTest::newRow("moved, with letters") << QString::fromUtf8("Prüfung & Söhne/lib/libhintreels.so")
                                         << QString::fromUtf8("Prüfung & Söhne/");
}

void tst_standardPackages::packages_areFound_inEveryLayout()
{
    QFETCH(QString, library);
    QFETCH(QString, prefix);
    const TestPackages tree;
    const QString file = tree.write(library, "library");
    tree.write(prefix + "share/hintreels/packages/Standard.hintreels/Control/Standard.xml", "");

    QCOMPARE(packagesOf(file), tree.path() + '/' + prefix + "share/hintreels/packages");
}

void tst_standardPackages::packages_areFound_throughALink()
{
    const TestPackages tree;
    const QString file = tree.write("opt/hintreels/lib/libhintreels.so.1.0.0", "library");
    tree.write(
        "opt/hintreels/share/hintreels/packages/Standard.hintreels/Control/Standard.xml", "");
    const QString link = tree.path() + "/libhintreels.so";
    QVERIFY(QFile::link(file, link));

    QCOMPARE(packagesOf(link), tree.path() + "/opt/hintreels/share/hintreels/packages");
}

void tst_standardPackages::packages_areNull_whereThereAreNone_data()
{
    QTest::addColumn<QString>("library");
    QTest::addColumn<QString>("content");
    QTest::newRow("nothing") << "usr/lib/libhintreels.so"
                             << "usr/share/other";
    QTest::newRow("other packages alone") << "usr/lib/libhintreels.so"
                                          << "usr/share/hintreels/packages/Other.hintreels/a.xml";
    // Far up the tree everybody may put files.
    QTest::newRow("further up") << "tmp/me/build/libhintreels.so"
                                << "tmp/share/hintreels/packages/Standard.hintreels/a.xml";
}

void tst_standardPackages::packages_areNull_whereThereAreNone()
{
    QFETCH(QString, library);
    QFETCH(QString, content);
    const TestPackages tree;
    const QString file = tree.write(library, "library");
    tree.write(content, "");

    QVERIFY(packagesOf(file).isNull());
}

void tst_standardPackages::library_isTheProgram_thatHasItLinkedIn()
{
    QCOMPARE(QFileInfo(libraryFile()).canonicalFilePath(),
        QFileInfo(QCoreApplication::applicationFilePath()).canonicalFilePath());
}

void tst_standardPackages::packages_ofTheInterface_areTheLibrarys()
{
    const QDir prefix(QCoreApplication::applicationDirPath() + "/..");
    QVERIFY(prefix.mkpath("share/hintreels/packages/Standard.hintreels"));
    const QString packages = HRInterface::standardPackages();
    QVERIFY(QDir(prefix.filePath("share")).removeRecursively());
    QCOMPARE(packages, prefix.canonicalPath() + "/share/hintreels/packages");
    QVERIFY(HRInterface::standardPackages().isNull());
}

QTEST_GUILESS_MAIN(tst_standardPackages)
#include "tst_standardPackages.moc"
