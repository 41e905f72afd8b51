// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/sceneReach_p.h"

#include "context/HRContext.h"
#include "gates/HRFileGate_p.h"
#include "support/TestPackage.h"

#include <QtTest>

using namespace Hintreels;

/// The rules alone; what they do to scenes is in tests/gates.
class tst_sceneReach : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void file_mayBecomeAScene_byTheRules_data();
    void file_mayBecomeAScene_byTheRules();
    void url_isOfAFileOrAResource();
    void scriptLimit_isTheSettings();
};

void tst_sceneReach::file_mayBecomeAScene_byTheRules_data()
{
    QTest::addColumn<QString>("source"); // %1 for the packages
    QTest::addColumn<bool>("freely");
    QTest::addColumn<bool>("amongOwnFiles");
    QTest::addColumn<bool>("fromStrangers");
    QTest::newRow("nothing") << "" << true << true << true;
    QTest::newRow("file of the package")
        << "file://%1/A.hintreels/ui/Popup.qml" << true << true << false;
    QTest::newRow("file of another")
        << "file://%1/B.hintreels/ui/Popup.qml" << true << false << false;
    QTest::newRow("from another machine")
        << "http://example.org/Popup.qml" << true << false << false;
    QTest::newRow("of the host") << "qrc:/host/Popup.qml" << true << true << false;
    QTest::newRow("built in") << urlOfFile(builtInUi(false)).toString() << true << true << true;
    QTest::newRow("built in, simple")
        << urlOfFile(builtInUi(true)).toString() << true << true << true;
}

void tst_sceneReach::file_mayBecomeAScene_byTheRules()
{
    QFETCH(QString, source);
    const TestPackages packages;
    packages.write("A.hintreels/ui/Popup.qml", "");
    packages.write("B.hintreels/ui/Popup.qml", "");
    const QUrl url(source.contains("%1") ? source.arg(packages.path()) : source);
    HRReach reach;
    reach.packages = QStringList{ packages.path() + "/A.hintreels" };
    QTEST(mayBecomeScene(url, reach), "freely");
    reach.rules.ownFilesOnly = true;
    QTEST(mayBecomeScene(url, reach), "amongOwnFiles");
    reach.rules.fromStrangers = true;
    QTEST(mayBecomeScene(url, reach), "fromStrangers");
}

void tst_sceneReach::url_isOfAFileOrAResource()
{
    QCOMPARE(urlOfFile("/a b.qml"), QUrl("file:///a b.qml"));
    QCOMPARE(urlOfFile(":/a b.qml"), QUrl("qrc:/a b.qml"));
}

void tst_sceneReach::scriptLimit_isTheSettings()
{
    QCOMPARE(scriptLimit(nullptr), 2000);
    HRContext settings;
    QCOMPARE(scriptLimit(&settings), 2000);
    settings.set(scriptLimitKey, 70);
    QCOMPARE(scriptLimit(&settings), 70);
}

QTEST_MAIN(tst_sceneReach)
#include "tst_sceneReach.moc"
