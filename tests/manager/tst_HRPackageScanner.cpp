// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "context/HRContext.h"
#include "index/HRIndex.h"
#include "interface/HRTypes.h"
#include "manager/HRPackageScanner_p.h"
#include "support/TestPackage.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <sys/stat.h>

using namespace Hintreels;

namespace {

class RecordingIndex : public HRIndex
{
public:
    using HRIndex::HRIndex;

    void indexControlFile(const QString &filePath, const QString &packagePath) override
    {
        calls.append(filePath + " in " + packagePath);
    }

    QStringList calls;
};

struct Fixture
{
    HRContext context;
    RecordingIndex index{ &context, {} };
    QStringList reports;
    HRPackageScanner scanner{ context, index, [this](const QString &text) { reports += text; } };
    TestPackages packages;
    const QString path = packages.path();

    Fixture() { context.set(messageLevelKey, int(messageInformation)); }
};

} // namespace

class tst_HRPackageScanner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scanDataPaths_indexesControlFilesOnly();
    void scanDataPaths_reportsEachStep();
    void scanDataPaths_passesOverWhatIsNoDirectory();
    void scanDataPaths_followsSuffixAndControlDirectorySettings_data();
    void scanDataPaths_followsSuffixAndControlDirectorySettings();
    void scanDataPaths_remembersDirectoryOnce_butScansItTwice();
    void scanDataPaths_passesOverLinks();
    void scanPackage_isSilent_whenControlDirectoryIsMissing();
    void scanPackage_takesWhatADirectoryListingTakes();
    void scanPackage_takesTheRootDirectory();
};

void tst_HRPackageScanner::scanDataPaths_indexesControlFilesOnly()
{
    Fixture f;
    f.packages.write("A.hintreels/Control/a.xml", "<hintreels/>");
    f.packages.write("A.hintreels/Control/b.txt", "<hintreels/>");
    f.packages.write("A.hintreels/Control/sub/c.xml", "<hintreels/>");
    f.packages.write("A.hintreels/d.xml", "<hintreels/>");
    f.packages.write("B.other/Control/e.xml", "<hintreels/>");
    f.packages.write("C.hintreels", "a file");

    f.scanner.scanDataPaths({ f.path });

    QCOMPARE(f.index.calls,
        QStringList{ f.path + "/A.hintreels/Control/a.xml in " + f.path + "/A.hintreels" });
}

void tst_HRPackageScanner::scanDataPaths_reportsEachStep()
{
    Fixture f;
    f.packages.write("A%2.hintreels/Control/a.xml", "<hintreels/>");

    f.scanner.scanDataPaths({ f.path });

    const QStringList expected{
        "indexing packages (*.hintreels) in " + f.path + " ",
        "indexing control files in " + f.path + "/A%2.hintreels",
        "looking for control files in :" + f.path + "/A%2.hintreels/Control",
        "found control file :" + f.path + "/A%2.hintreels/Control/a.xml",
    };
    QCOMPARE(f.reports, expected);
}

void tst_HRPackageScanner::scanDataPaths_passesOverWhatIsNoDirectory()
{
    Fixture f;
    const QString file = f.packages.write("A.hintreels", "a file");

    f.scanner.scanDataPaths({ file, f.path + "/missing", "" });

    QVERIFY(f.index.calls.isEmpty());
    QVERIFY(f.reports.isEmpty());
    QVERIFY(f.scanner.scannedDirectories().isEmpty());
}

void tst_HRPackageScanner::scanDataPaths_followsSuffixAndControlDirectorySettings_data()
{
    QTest::addColumn<QString>("suffix");
    for (const char *suffix : { "reels", "REELS", "r?els", "re*", "[pr]eels" })
        QTest::newRow(suffix) << suffix;
}

void tst_HRPackageScanner::scanDataPaths_followsSuffixAndControlDirectorySettings()
{
    QFETCH(QString, suffix);
    Fixture f;
    f.context.set(packageSuffixKey, suffix);
    f.context.set(controlDirectoryKey, "Files");
    f.packages.write("A.reels/Files/a.xml", "<hintreels/>");
    f.packages.write("B.hintreels/Control/b.xml", "<hintreels/>");

    f.scanner.scanDataPaths({ f.path });

    QCOMPARE(
        f.index.calls, QStringList{ f.path + "/A.reels/Files/a.xml in " + f.path + "/A.reels" });
}

void tst_HRPackageScanner::scanDataPaths_remembersDirectoryOnce_butScansItTwice()
{
    Fixture f;
    f.packages.write("A.hintreels/Control/a.xml", "<hintreels/>");

    f.scanner.scanDataPaths({ f.path, f.path + "/A.hintreels/.." });

    QCOMPARE(f.index.calls.size(), 2);
    QCOMPARE(f.scanner.scannedDirectories(), QStringList{ f.path });
}

void tst_HRPackageScanner::scanDataPaths_passesOverLinks()
{
    Fixture f;
    const TestPackages elsewhere;
    elsewhere.write("A.hintreels/Control/a.xml", "<hintreels/>");
    QVERIFY(QFile::link(elsewhere.path() + "/A.hintreels", f.path + "/A.hintreels"));
    f.packages.write("B.hintreels/Control/readme.txt", "");
    QVERIFY(QFile::link(
        elsewhere.path() + "/A.hintreels/Control/a.xml", f.path + "/B.hintreels/Control/a.xml"));

    f.scanner.scanDataPaths({ f.path });

    QVERIFY(f.index.calls.isEmpty());
}

void tst_HRPackageScanner::scanPackage_isSilent_whenControlDirectoryIsMissing()
{
    Fixture f;
    f.packages.write("A.hintreels/readme.txt", "");

    f.scanner.scanPackage(QFileInfo(f.path + "/A.hintreels"));

    QCOMPARE(f.reports.size(), 2);
    QVERIFY(f.index.calls.isEmpty());
}

void tst_HRPackageScanner::scanPackage_takesWhatADirectoryListingTakes()
{
    Fixture f;
    const QString control = f.path + "/A.hintreels/Control";
    for (const char *name : { "a.xml", "B.XML", ".hidden.xml", "c.xml.bak", "d.xMl", ".xml", "xml",
             "e f.xml", "\xC3\xA9.xml", "unreadable.xml" })
        f.packages.write("A.hintreels/Control/" + QString::fromUtf8(name), "");
    QVERIFY(QDir(control).mkdir("directory.xml"));
    QVERIFY(QFile::link(control + "/a.xml", control + "/link.xml"));
    QCOMPARE(::mkfifo(qPrintable(control + "/pipe.xml"), 0600), 0);
    QVERIFY(QFile::setPermissions(control + "/unreadable.xml", QFile::WriteOwner));
    const QStringList names = QDir(control).entryList({ "*.xml" },
        QDir::Files | QDir::NoSymLinks | QDir::Readable | QDir::NoDotAndDotDot, QDir::NoSort);
    QStringList expected;
    for (const QString &name : names)
        expected += control + '/' + name + " in " + f.path + "/A.hintreels";

    f.scanner.scanDataPaths({ f.path });

    QCOMPARE(f.index.calls, expected);
    QVERIFY(expected.size() >= 5);
}

void tst_HRPackageScanner::scanPackage_takesTheRootDirectory()
{
    const TestPackages packages;
    packages.writeControl("A", "a.xml", "<hintreel key='pen'/>");
    HRContext context;
    context.set(controlDirectoryKey, packages.path().mid(1) + "/A.hintreels/Control");
    HRIndex index(&context, {});
    HRPackageScanner(context, index, [](const QString &) {}).scanPackage(QFileInfo("/"));
    QCOMPARE(index.keys(), QStringList("pen"));
}

QTEST_APPLESS_MAIN(tst_HRPackageScanner)
#include "tst_HRPackageScanner.moc"
