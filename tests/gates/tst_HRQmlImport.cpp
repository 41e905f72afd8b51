// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "gates/HRPackageRules_p.h"
#include "gates/HRQmlImport_p.h"

#include <QtTest>

using namespace Hintreels;

class tst_HRQmlImport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void importsOfQml_findsModules_data();
    void importsOfQml_findsModules();
    void importsOfQmldir_findsModules();
    void loadsPlugin_seesLibraries();
    void moduleInDirectory_readsVersions_data();
    void moduleInDirectory_readsVersions();
    void isModuleAllowed_knowsTheUsualOnes_data();
    void isModuleAllowed_knowsTheUsualOnes();
};

namespace {

QStringList named(const QVector<HRQmlImport> &imports)
{
    QStringList names;
    for (const HRQmlImport &import : imports)
        names.append(import.module + ' ' + QString::number(import.major));
    return names;
}

} // namespace

void tst_HRQmlImport::importsOfQml_findsModules_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("modules");
    QTest::newRow("none") << "Item {}" << QStringList();
    QTest::newRow("usual") << "import QtQuick 2.15\nimport QtQuick.Window 2.2 as W\nItem {}"
                           << QStringList{ "QtQuick 2", "QtQuick.Window 2" };
    QTest::newRow("in one line") << "import QtQuick 2.15; import A.B 1.0; Item {}"
                                 << QStringList{ "QtQuick 2", "A.B 1" };
    QTest::newRow("without a version")
        << "import A\nimport B\nItem {}" << QStringList{ "A 0", "B 0" };
    QTest::newRow("after comments and pragmas")
        << "// import X 1.0\n/* import Y 1.0 */ pragma Singleton\nimport A 1.0\nItem {}"
        << QStringList{ "A 1" };
    QTest::newRow("between comments")
        << "import /* Q */ A /**/ . /* */ B // x\n 1.0\nItem {}" << QStringList{ "A.B 1" };
    QTest::newRow("after files") << "import \"dir\" 1.0 as D\nimport 'a\\'.js' as J\nimport A 1.0"
                                 << QStringList{ "A 1" };
    QTest::newRow("spelled with escapes")
        << "import QtQuick\\u002eLocalStorage 2.0" << QStringList{ "QtQuick\\u002eLocalStorage 2" };
    QTest::newRow("script") << ".pragma library\n.import A.B 1.0 as C\n.import \"x.js\" as X\n"
                               ".import D 2.0 as E\nvar a"
                            << QStringList{ "A.B 1", "D 2" };
    QTest::newRow("an object's property")
        << "Item { property var a: 1 }\nimport A 1.0" << QStringList();
    QTest::newRow("values of a pragma")
        << "pragma A: B, 'C', D\npragma E\nimport F 1.0" << QStringList{ "F 1" };
    QTest::newRow("endless comment") << "/*" << QStringList();
    QTest::newRow("endless string") << "import 'a\\" << QStringList();
    QTest::newRow("underscores") << "import _A_.B_ 1.0" << QStringList{ "_A_.B_ 1" };
    QTest::newRow("byte order mark")
        << QChar(QChar::ByteOrderMark) + QString("import A 1.0") << QStringList{ "A 1" };
}

void tst_HRQmlImport::importsOfQml_findsModules()
{
    QFETCH(QString, text);
    QTEST(named(importsOfQml(text)), "modules");
}

void tst_HRQmlImport::importsOfQmldir_findsModules()
{
    QCOMPARE(named(importsOfQmldir("module A\n# import X 1.0\n  import B 1.0\ndepends C 2.15\n")),
        (QStringList{ "B 1", "C 2" }));
    QCOMPARE(
        named(importsOfQmldir("optional import A 1.0\ndefault import B auto\noptional plugin c")),
        (QStringList{ "A 1", "B 0" }));
}

void tst_HRQmlImport::loadsPlugin_seesLibraries()
{
    QVERIFY(loadsPlugin("module A\nplugin a\n"));
    QVERIFY(loadsPlugin("optional  plugin a ../b"));
    QVERIFY(!loadsPlugin("module plugins\n# plugin a\nA 1.0 A.qml\n"));
}

void tst_HRQmlImport::moduleInDirectory_readsVersions_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("module");
    QTest::newRow("plain") << "QtQuick/Layouts"
                           << "QtQuick.Layouts 0";
    QTest::newRow("version") << "QtQuick/Controls.2"
                             << "QtQuick.Controls 2";
    QTest::newRow("version above") << "QtQuick/Controls.2/Material"
                                   << "QtQuick.Controls.Material 2";
    QTest::newRow("two numbers") << "A/B.1.4"
                                 << "A.B 1";
}

void tst_HRQmlImport::moduleInDirectory_readsVersions()
{
    QFETCH(QString, path);
    QTEST(named({ moduleInDirectory(path) }).first(), "module");
}

void tst_HRQmlImport::isModuleAllowed_knowsTheUsualOnes_data()
{
    QTest::addColumn<QString>("module");
    QTest::addColumn<int>("major");
    QTest::addColumn<bool>("allowed");
    QTest::newRow("QtQml") << "QtQml" << 2 << true;
    QTest::newRow("QtQuick") << "QtQuick" << 2 << true;
    QTest::newRow("Window") << "QtQuick.Window" << 2 << true;
    QTest::newRow("Layouts") << "QtQuick.Layouts" << 1 << true;
    QTest::newRow("Controls 2") << "QtQuick.Controls" << 2 << true;
    QTest::newRow("a style of them") << "QtQuick.Controls.Material" << 2 << true;
    QTest::newRow("Controls 1") << "QtQuick.Controls" << 1 << false;
    QTest::newRow("Controls that need no version")
        << "QtQuick.Controls" << 0 << (QT_VERSION_MAJOR >= 6);
    QTest::newRow("Templates") << "QtQuick.Templates" << 2 << true;
    QTest::newRow("Shapes") << "QtQuick.Shapes" << 1 << true;
    QTest::newRow("effects") << "QtGraphicalEffects" << 1 << true;
    QTest::newRow("effects of Qt 6") << "Qt5Compat.GraphicalEffects" << 1 << true;
    QTest::newRow("ours") << "com.zentora.hintreels.qml" << 1 << true;
    QTest::newRow("LocalStorage writes") << "QtQuick.LocalStorage" << 2 << false;
    QTest::newRow("XmlListModel loads") << "QtQuick.XmlListModel" << 2 << false;
    QTest::newRow("settings write") << "Qt.labs.settings" << 1 << false;
    QTest::newRow("WebSockets") << "QtWebSockets" << 1 << false;
    QTest::newRow("a name that begins alike") << "QtQuickWindow" << 2 << false;
    QTest::newRow("the host's") << "My.Host" << 0 << true;
    QTest::newRow("inside the host's") << "My.Host.Parts" << 1 << true;
    QTest::newRow("beside the host's") << "My.Hostile" << 1 << false;
}

void tst_HRQmlImport::isModuleAllowed_knowsTheUsualOnes()
{
    QFETCH(QString, module);
    QFETCH(int, major);
    QTEST(isModuleAllowed(module, major, { "My.Host" }), "allowed");
}

QTEST_APPLESS_MAIN(tst_HRQmlImport)
#include "tst_HRQmlImport.moc"
