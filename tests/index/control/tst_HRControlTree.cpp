// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "index/control/HRControlTree_p.h"
#include "index/control/elementFilters_p.h"
#include "support/MessageGuard.h"
#include "support/TestPackage.h"

#include <QLocale>
#include <QtTest>

using namespace Hintreels;

class tst_HRControlTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readOnlyTree_buildsTheWantedEntryAlone();
    void readOnlyTree_returnsNull_whenTheFileEndsInTheRoot();
    void readOnlyTree_returnsALiveTree_whenTheErrorComesAfterTheRoot();
    void keys_comeInOrder_withRepetitions();
    void keys_goOnUpToAnError();
    void keyData_isWithoutName();
    void keyData_isEmpty_withoutTheKey();
    void servesLocale_compares_data();
    void servesLocale_compares();
};

void tst_HRControlTree::readOnlyTree_buildsTheWantedEntryAlone()
{
    const TestPackages packages;
    const QString file = packages.writeControl("A", "a.xml",
        "<hintreel key='pen'><title>Pen</title></hintreel><hintreel key='line'/><other/>");
    HRControlErrors errors;
    const auto tree = readOnlyTree(file, generateContentElement, "pen", errors);
    QVERIFY(tree);
    QVERIFY(errors.isEmpty());
    QCOMPARE(tree->toXml(),
        QString("<hintreels>\n  <hintreel key=\"pen\">\n    <title/>\n  </hintreel>\n"
                "</hintreels>"));
}

void tst_HRControlTree::readOnlyTree_returnsNull_whenTheFileEndsInTheRoot()
{
    MessageGuard messages;
    const TestPackages packages;
    const QString file
        = packages.write("a.xml", "<hintreels><hintreel key='pen'><title/></hintreel><");
    HRControlErrors errors;
    QVERIFY(!readOnlyTree(file, generateContentElement, "pen", errors));
    QCOMPARE(messages.takeMessages().size(), 1);
    QCOMPARE(errors.value(file).line, 1);
    QCOMPARE(errors.value(file).text, QString("unexpected end of file"));
}

void tst_HRControlTree::readOnlyTree_returnsALiveTree_whenTheErrorComesAfterTheRoot()
{
    MessageGuard messages;
    const TestPackages packages;
    const QString file
        = packages.write("a.xml", "<hintreels><hintreel key='pen'/></hintreels><more/>");
    HRControlErrors errors;
    const auto tree = readOnlyTree(file, generateContentElement, "pen", errors);
    QVERIFY(tree);
    QCOMPARE(tree->children().size(), 1);
    QCOMPARE(messages.takeMessages().size(), 1);
}

void tst_HRControlTree::keys_comeInOrder_withRepetitions()
{
    const TestPackages packages;
    const QString file = packages.writeControl("A", "a.xml",
        "<hintreel key='b'/><hintreel/><hintreel key='a'><hintreel key='inner'/></hintreel>"
        "<group><hintreel key='grouped'/></group><hintreel key='b'/><hintreel key=''/>");
    QCOMPARE(keysOfControlFile(file), QStringList({ "b", "a", "grouped", "b", "" }));
}

void tst_HRControlTree::keys_goOnUpToAnError()
{
    MessageGuard messages;
    const TestPackages packages;
    const QString file
        = packages.write("a.xml", "<hintreels><hintreel key='a'/><hintreel key='b'></hintreels>");
    QCOMPARE(keysOfControlFile(file), QStringList({ "a", "b" }));
    QCOMPARE(messages.takeMessages().size(), 1);
}

void tst_HRControlTree::keyData_isWithoutName()
{
    const TestPackages packages;
    const QString file = packages.write("keys.xml",
        "<hintreelkeys><key name='line' a='0'/><key name='pen' a='1' b=''/></hintreelkeys>");
    const QMap<QString, QString> expected{ { "a", "1" }, { "b", "" } };
    QCOMPARE(keyDataAttributes(file, "pen"), expected);
}

void tst_HRControlTree::keyData_isEmpty_withoutTheKey()
{
    const TestPackages packages;
    const QString file
        = packages.write("keys.xml", "<hintreelkeys><key name='line'/></hintreelkeys>");
    QVERIFY(keyDataAttributes(file, "pen").isEmpty());
    QVERIFY(keyDataAttributes(packages.path() + "/none.xml", "pen").isEmpty());
    QVERIFY(keyDataAttributes(packages.path(), "pen").isEmpty());
}

void tst_HRControlTree::servesLocale_compares_data()
{
    QTest::addColumn<QString>("served");
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<bool>("serves");
    QTest::newRow("same") << "de_DE"
                          << "de_DE" << true;
    QTest::newRow("empty serves all") << ""
                                      << "fr_FR" << true;
    QTest::newRow("language alone is its main country") << "de_DE"
                                                        << "de" << true;
    QTest::newRow("other country") << "de_DE"
                                   << "de_AT" << false;
    QTest::newRow("other language") << "de_DE"
                                    << "en_US" << false;
    QTest::newRow("unknown name is C") << "klingon"
                                       << "C" << true;
}

void tst_HRControlTree::servesLocale_compares()
{
    QFETCH(QString, served);
    QFETCH(QString, wanted);
    HRXmlElement root;
    root.setAttribute("locale", served);
    QTEST(servesLocale(root, QLocale(wanted)), "serves");
    HRXmlElement plain;
    QVERIFY(servesLocale(plain, QLocale(wanted)));
}

QTEST_GUILESS_MAIN(tst_HRControlTree)
#include "tst_HRControlTree.moc"
