// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "gates/HRFileGate_p.h"
#include "support/TestPackage.h"

#include <QFile>
#include <QtTest>

#include <sys/stat.h>

using namespace Hintreels;

class tst_HRFileGate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isInside_followsThePath_data();
    void isInside_followsThePath();
    void gate_keepsToPackagesAndModules_data();
    void gate_keepsToPackagesAndModules();
    void gate_allowsEverything_byDefault();
};

namespace {

/// A package, an import path with two modules, and a file beside them.
struct Place
{
    Place()
    {
        files.write("Own/plain.qml", "import QtQuick 2.15\nItem {}\n");
        files.write("Own/other.qml", "import Other.Module 1.0\nItem {}\n");
        files.write("Own/qmldir", "module Own\nplugin own\n");
        files.write("Own/captions.vtt", "WEBVTT\n");
        files.write("modules/QtQuick/Window/a.qml", "import Other.Module 1.0\nItem {}\n");
        files.write("modules/Other/Module.1/a.qml", "import QtQuick 2.15\nItem {}\n");
        files.write("secret.txt", "secret");
        ::mkfifo(QFile::encodeName(files.path() + "/Own/pipe").constData(), S_IRUSR | S_IWUSR);
    }

    QString path(const QString &file) const { return files.path() + '/' + file; }

    HRReach reach() const
    {
        HRReach reach;
        reach.packages = QStringList{ path("Own") };
        reach.importPaths = QStringList{ path("none"), path("modules") };
        return reach;
    }

    TestPackages files;
};

} // namespace

void tst_HRFileGate::isInside_followsThePath_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("directory");
    QTest::addColumn<bool>("inside");
    QTest::newRow("in it") << "Own/plain.qml"
                           << "Own" << true;
    QTest::newRow("two levels down") << "modules/QtQuick/Window/a.qml"
                                     << "modules" << true;
    QTest::newRow("roundabout") << "modules/../Own/plain.qml"
                                << "Own" << true;
    QTest::newRow("out of it") << "Own/../secret.txt"
                               << "Own" << false;
    QTest::newRow("the directory itself") << "Own"
                                          << "Own" << false;
    QTest::newRow("a name that begins alike") << "Own/plain.qml"
                                              << "Ow" << false;
    QTest::newRow("missing directory") << "Own/plain.qml"
                                       << "none" << false;
    QTest::newRow("missing file") << "Own/none"
                                  << "Own" << false;
}

void tst_HRFileGate::isInside_followsThePath()
{
    QFETCH(QString, file);
    QFETCH(QString, directory);
    const Place place;
    QTEST(isInside(place.path(file), { "/nowhere", place.path(directory) }), "inside");
    QVERIFY(isInside(place.path("secret.txt"), { "/" }));
}

void tst_HRFileGate::gate_keepsToPackagesAndModules_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("fromStrangers");
    QTest::addColumn<QString>("allowed"); // to open, to run, to import
    QTest::addColumn<QString>("refused"); // the module

    QTest::newRow("own") << "Own/plain.qml" << false << "ori"
                         << "";
    QTest::newRow("own, with another module") << "Own/other.qml" << false << "o--"
                                              << "Other.Module";
    QTest::newRow("own, with a plugin") << "Own/qmldir" << false << "or-"
                                        << "";
    QTest::newRow("own, which nobody writes") << "Own/pipe" << false << "ori"
                                              << "";
    QTest::newRow("usual module") << "modules/QtQuick/Window/a.qml" << false << "ori"
                                  << "";
    QTest::newRow("other module") << "modules/Other/Module.1/a.qml" << false << "---"
                                  << "Other.Module";
    QTest::newRow("elsewhere") << "secret.txt" << false << "---"
                               << "";
    QTest::newRow("missing") << "none" << false << "ori"
                             << "";
    QTest::newRow("of strangers") << "Own/plain.qml" << true << "---"
                                  << "";
    QTest::newRow("text of strangers") << "Own/captions.vtt" << true << "o--"
                                       << "";
    QTest::newRow("usual module, for strangers") << "modules/QtQuick/Window/a.qml" << true << "ori"
                                                 << "";
    QTest::newRow("missing, of strangers") << "Own/none" << true << "ori"
                                           << "";
}

void tst_HRFileGate::gate_keepsToPackagesAndModules()
{
    QFETCH(QString, file);
    QFETCH(bool, fromStrangers);
    const Place place;
    HRReach reach = place.reach();
    reach.rules.ownFilesOnly = true;
    reach.rules.fromStrangers = fromStrangers;
    HRFileGate gate;
    gate.setReach(reach);
    const QString path = place.path(file);
    QString notRun;
    QString notImported;
    QString allowed = gate.mayOpen(path, HRFileUse::any) ? "o" : "-";
    allowed += gate.mayRun(path, notRun) ? "r" : "-";
    allowed += gate.mayImport(path, notImported) ? "i" : "-";
    QTEST(allowed, "allowed");
    QTEST(notRun, "refused");
    QTEST(notImported, "refused");
    QVERIFY(gate.mayOpen(QString(), HRFileUse::any));
}

void tst_HRFileGate::gate_allowsEverything_byDefault()
{
    const Place place;
    HRFileGate gate;
    gate.setReach(place.reach());
    QString refused;
    for (const char *file : { "secret.txt", "Own/other.qml", "modules/Other/Module.1/a.qml" }) {
        QVERIFY(gate.mayOpen(place.path(file), HRFileUse::picture));
        QVERIFY(gate.mayRun(place.path(file), refused));
        QVERIFY(gate.mayImport(place.path(file), refused));
    }
    QCOMPARE(refused, QString());
}

QTEST_APPLESS_MAIN(tst_HRFileGate)
#include "tst_HRFileGate.moc"
