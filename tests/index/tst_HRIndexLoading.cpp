// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/IndexFixture.h"

#include <QtTest>

using namespace Hintreels;

/// What an index adds to the entries that it loads, and where their components may lie.
class tst_HRIndexLoading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void load_leavesRootAlone_whenThereIsNoFile();
    void load_marksTheEntry();
    void load_keepsTheMarks_againstKeyData();
    void loadKeyData_overwritesAttributes();
    void componentPaths_ofAPackage();
    void componentPaths_ofAnElement();
    void packageSuffix_isASetting();
    void mapControlFile_seesADirectoryThatIsMadeLater();
    void mapControlFile_seesASuffix_whenSettingsAreAssigned();
};

void tst_HRIndexLoading::load_leavesRootAlone_whenThereIsNoFile()
{
    IndexFixture fixture;
    HRXmlElement other;
    HRXmlElement *root = &other;
    const QString none = fixture.packages.path() + "/none.xml";
    QVERIFY(!fixture.index.load("pen", none, QLocale("en_US"), root));
    QCOMPARE(root, &other);
    const QString file = fixture.packages.writeControl("A", "a.xml", "<hintreel key='line'/>");
    QVERIFY(!fixture.index.load("pen", file, QLocale("en_US"), root));
    QVERIFY(!root);
}

void tst_HRIndexLoading::load_marksTheEntry()
{
    IndexFixture fixture;
    const QString file = fixture.packages.writeControl(
        "A", "a.xml", "<hintreel key='pen' HRLocation='/etc' HRPackagName='B'/>");
    HRXmlElement *root = nullptr;
    HRXmlElement *entry = fixture.index.load("pen", file, QLocale("en_US"), root);
    QVERIFY(entry);
    const std::unique_ptr<HRXmlElement> tree(root);
    QCOMPARE(entry->parent(), root);
    QCOMPARE(entry->attribute("HRLocation"), file);
    QCOMPARE(entry->attribute("HRPackagName"), QString("A"));
}

void tst_HRIndexLoading::load_keepsTheMarks_againstKeyData()
{
    IndexFixture fixture;
    fixture.context.set(keyDataFileKey,
        fixture.packages.write("keys.xml",
            "<hintreelkeys><key name='pen' HRLocation='/etc' HRPackagName='B' a='1'/>"
            "</hintreelkeys>"));
    const QString file = fixture.add("A", "a.xml", "<hintreel key='pen'/>");
    const auto tree = fixture.find("pen");
    QVERIFY(tree);
    const HRXmlElement *entry = tree->childElement("hintreel");
    QCOMPARE(entry->attribute("HRLocation"), file);
    QCOMPARE(entry->attribute("HRPackagName"), QString("A"));
    QCOMPARE(entry->attribute("a"), QString("1"));
}

void tst_HRIndexLoading::loadKeyData_overwritesAttributes()
{
    IndexFixture fixture;
    HRXmlElement entry;
    entry.setAttribute("n", "1");
    entry.setAttribute("name", "kept");
    fixture.index.loadKeyData("pen", QString(), &entry);
    QCOMPARE(entry.attribute("n"), QString("1"));
    fixture.context.set(keyDataFileKey,
        fixture.packages.write("keys.xml",
            "<hintreelkeys><key name='pen' n='2' m='3'/><key name='pen' n='4'/></hintreelkeys>"));
    fixture.index.loadKeyData("pen", QString(), &entry);
    QCOMPARE(entry.attribute("n"), QString("2"));
    QCOMPARE(entry.attribute("m"), QString("3"));
    QCOMPARE(entry.attribute("name"), QString("kept"));
}

void tst_HRIndexLoading::componentPaths_ofAPackage()
{
    IndexFixture fixture;
    fixture.add("1/A", "a.xml", "<hintreel key='pen'/>");
    fixture.add("2/A", "a.xml", "<hintreel key='pen'/>");
    fixture.add("1/A", "b.xml", "<hintreel key='line'/>");
    const QStringList both{ fixture.packagePath("1/A"), fixture.packagePath("2/A") };
    QCOMPARE(fixture.index.componentPathsForPackageNamed("A"), both);
    QCOMPARE(fixture.index.componentPathsForPackageNamed("B"), QStringList());
    fixture.context.set(componentDirectoryKey, "/shared");
    QCOMPARE(fixture.index.componentPathsForPackageNamed("A"), both + QStringList("/shared"));
    QCOMPARE(fixture.index.componentPathsForPackageNamed("B"), QStringList("/shared"));
}

void tst_HRIndexLoading::componentPaths_ofAnElement()
{
    IndexFixture fixture;
    fixture.add("B", "b.xml", "<hintreel key='x'/>");
    fixture.add("C", "c.xml", "<hintreel key='x'/>");
    fixture.add("A", "a.xml", "<hintreel key='pen'/>", "search=' C, ;B X'");
    fixture.context.set(componentDirectoryKey, "/shared");
    const auto tree = fixture.find("pen");
    QVERIFY(tree);
    const HRXmlElement *entry = tree->childElement("hintreel");
    const QStringList directories{ fixture.packagePath("A"), "/shared", fixture.packagePath("C"),
        fixture.packagePath("B") };
    QCOMPARE(fixture.index.componentPathsForElement(entry, QString()), directories);
    QStringList files;
    for (const QString &directory : directories)
        files.append(directory + "/video/a.mp4");
    QCOMPARE(fixture.index.componentPathsForElement(entry, "video/a.mp4"), files);
}

void tst_HRIndexLoading::packageSuffix_isASetting()
{
    IndexFixture fixture;
    fixture.packages.write("A.tips/x.xml", "");
    const QString file = fixture.packages.path() + "/A.tips/x.xml";
    QCOMPARE(fixture.index.packageNameForLocation(file), QString());
    fixture.context.set(packageSuffixKey, "tips");
    QCOMPARE(fixture.index.packageNameForLocation(file), QString("A"));
}

void tst_HRIndexLoading::mapControlFile_seesADirectoryThatIsMadeLater()
{
    IndexFixture fixture;
    const QString package = fixture.packagePath("A");
    fixture.index.mapControlFile(QString(), package);
    QVERIFY(fixture.index.componentPathsForPackageNamed("A").isEmpty());
    fixture.packages.write("A.hintreels/x.xml", "");
    fixture.index.mapControlFile(QString(), package);
    QCOMPARE(fixture.index.componentPathsForPackageNamed("A"), QStringList(package));
}

void tst_HRIndexLoading::mapControlFile_seesASuffix_whenSettingsAreAssigned()
{
    IndexFixture fixture;
    fixture.packages.write("A.tips/x.xml", "");
    const QString package = fixture.packages.path() + "/A.tips";
    fixture.index.mapControlFile(QString(), package);
    HRContext settings;
    settings.set(packageSuffixKey, "tips");
    fixture.context = settings;
    fixture.index.mapControlFile(QString(), package);
    QCOMPARE(fixture.index.componentPathsForPackageNamed("A"), QStringList(package));
}

QTEST_GUILESS_MAIN(tst_HRIndexLoading)
#include "tst_HRIndexLoading.moc"
