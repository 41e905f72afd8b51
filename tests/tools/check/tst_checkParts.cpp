// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlParser.h"
#include "hintreels/check/ControlFile.h"
#include "hintreels/check/Package.h"
#include "hintreels/check/Suppression.h"
#include "hintreels/check/elementShape.h"
#include "hintreels/check/localeName.h"
#include "hintreels/check/nearestWord.h"
#include "support/TestPackage.h"
#include "ui/reader/hintReading_p.h"

#include <QtTest>

using namespace Hintreels;

/// What the rules of `hintreels check` are made of.
class tst_checkParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void editDistance_counts_data();
    void editDistance_counts();
    void nearestWord_isNear_data();
    void nearestWord_isNear();
    void nearestLocale_isMeant_data();
    void nearestLocale_isMeant();
    void spot_isThatOfAttribute_data();
    void spot_isThatOfAttribute();
    void elements_keepTheirPlaces_beforeError();
    void elements_findTheirEntry();
    void suppression_coversLines_data();
    void suppression_coversLines();
    void shapes_areThoseThatTheUiReads_data();
    void shapes_areThoseThatTheUiReads();

private:
    const TestPackages m_packages;
    const Shelf m_shelf;
    const Package m_package{ m_packages.path() + "/A.hintreels", m_shelf };
};

void tst_checkParts::editDistance_counts_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<int>("distance");

    QTest::newRow("same") << "key"
                          << "key" << 0;
    QTest::newRow("put in") << "summry"
                            << "summary" << 1;
    QTest::newRow("taken out") << "keyy"
                               << "key" << 1;
    QTest::newRow("replaced") << "kez"
                              << "key" << 1;
    QTest::newRow("swapped") << "tilte"
                             << "title" << 1;
    QTest::newRow("empty") << ""
                           << "key" << 3;
    QTest::newRow("all") << "abc"
                         << "xyz" << 3;
}

void tst_checkParts::editDistance_counts()
{
    QFETCH(QString, a);
    QFETCH(QString, b);

    QTEST(editDistance(a, b), "distance");
    QTEST(editDistance(b, a), "distance");
}

void tst_checkParts::nearestWord_isNear_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("nearest");

    QTest::newRow("near") << "tilte"
                          << "title";
    QTest::newRow("letters of another case") << "Title"
                                             << "title";
    QTest::newRow("the nearer one") << "titles"
                                    << "title";
    QTest::newRow("none") << "shortcut"
                          << "";
}

void tst_checkParts::nearestWord_isNear()
{
    QFETCH(QString, word);

    QTEST(nearestWord(word, { "titan", "title", "key" }), "nearest");
}

void tst_checkParts::nearestLocale_isMeant_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("nearest");

    QTest::newRow("language by its name") << "German"
                                          << "de_DE";
    QTest::newRow("country that is none") << "en_UK"
                                          << "en_GB";
    QTest::newRow("country of another language") << "de_DK"
                                                 << "de_DE";
    QTest::newRow("nothing near") << "klingon"
                                  << "";
}

void tst_checkParts::nearestLocale_isMeant()
{
    QFETCH(QString, name);

    QVERIFY(!isKnownLocale(name));
    QTEST(nearestLocale(name), "nearest");
}

void tst_checkParts::spot_isThatOfAttribute_data()
{
    QTest::addColumn<QByteArray>("tag");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("column");

    QTest::newRow("only one") << QByteArray("<hintreel key='a'/>") << 1 << 23;
    QTest::newRow("in the next line") << QByteArray("<hintreel\n key = \"a\"/>") << 2 << 2;
    QTest::newRow("name in a value") << QByteArray("<hintreel b='key=1' key='a'/>") << 1 << 33;
    QTest::newRow("end of a tag in a value") << QByteArray("<hintreel b='>' key='a'/>") << 1 << 29;
    QTest::newRow("none") << QByteArray("<hintreel/>") << 1 << 13;
    QTest::newRow("letters of several bytes")
        << QByteArray("<hintreel b='\u00f6\u20ac' key='a'/>") << 1 << 30;
}

void tst_checkParts::spot_isThatOfAttribute()
{
    QFETCH(QByteArray, tag);
    const ControlFile file(m_packages.writeControl("A", "a.xml", tag), m_package);

    QCOMPARE(int(file.elements().size()), 2);
    const Spot spot = file.elements()[1].spot("key");
    QTEST(spot.line, "line");
    QTEST(spot.column, "column");
    QCOMPARE(spot.file, file.path());
}

void tst_checkParts::elements_keepTheirPlaces_beforeError()
{
    const ControlFile file(
        m_packages.writeControl("A", "a.xml", "\n<hintreel key='a'><text>b</txt>"), m_package);

    QCOMPARE(file.error(), QString("tag mismatch"));
    QCOMPARE(int(file.elements().size()), 3);
    QCOMPARE(file.elements()[2].tag(), QString("text"));
    QCOMPARE(file.elements()[2].spot().column, 19);
}

void tst_checkParts::elements_findTheirEntry()
{
    const ControlFile file(
        m_packages.writeControl("A", "a.xml", "<hintreel key='a'><text><b/></text></hintreel>"),
        m_package);

    QCOMPARE(file.elements()[0].entry(), nullptr);
    for (size_t i = 1; i < 4; ++i)
        QCOMPARE(file.elements()[i].entry(), file.elements()[1].node);
}

void tst_checkParts::suppression_coversLines_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QVector<int>>("covered");

    const QByteArray comment = "<!-- hintreels: ignore xml: a reason -->";
    QTest::newRow("next element with all in it")
        << "<hintreels >\n" + comment + "\n<a>\n<b/>\n</a>\n<c/>\n</hintreels>"
        << QVector<int>{ 2, 3, 4, 5 };
    QTest::newRow("last element") << "<hintreels >\n<a/>\n" + comment + "\n<c/>\n</hintreels>"
                                  << QVector<int>{ 3, 4, 5, 6, 7 };
    QTest::newRow("whole file") << "<?xml version='1.0'?>\n" + comment
            + "\n<hintreels >\n<a/>\n</hintreels>\n"
                                << QVector<int>{ 1, 2, 3, 4, 5, 6, 7 };
    QTest::newRow("no reason") << QByteArray("<hintreels ><!-- hintreels: ignore xml: -->\n<a/>\n"
                                             "</hintreels>")
                               << QVector<int>{};
}

void tst_checkParts::suppression_coversLines()
{
    QFETCH(QByteArray, file);
    const ControlFile control(m_packages.write("A.hintreels/Control/a.xml", file), m_package);
    const QVector<Suppression> suppressions = suppressionsOf(control);

    QCOMPARE(suppressions.size(), 1);
    QVector<int> covered;
    for (int line = 1; line < 8; ++line) {
        const Finding finding{ { control.path(), line, 1 }, Severity::error, "xml", QString() };
        if (suppressions[0].covers(finding))
            covered.append(line);
    }
    QTEST(covered, "covered");
}

void tst_checkParts::shapes_areThoseThatTheUiReads_data()
{
    QTest::addColumn<QString>("name");

    const QStringList names = elementsIn("hintreel");
    QCOMPARE(names.size(), 7);
    for (const QString &name : names) {
        if (name != "summary") // which is no block
            QTest::newRow(qPrintable(name)) << name;
    }
}

/// The table of names says the same as the standard user interface's own.
void tst_checkParts::shapes_areThoseThatTheUiReads()
{
    QFETCH(QString, name);
    const ElementShape shape = elementShapes().value(name);
    HRXmlElement entry;
    auto *block = new HRXmlElement(&entry);
    block->setTagName(name);
    block->setContent("words");
    const QStringList all{ "alt", "kind", "loop", "press", "source", "to", "width" };
    for (const QString &attribute : shape.attributes) {
        QVERIFY2(all.contains(attribute), qPrintable(attribute));
        block->setAttribute(attribute, "1");
    }
    const auto blocks = [&entry] {
        return readHint(entry, [](const QString &text) { return text; }).value("blocks").toList();
    };

    QCOMPARE(blocks().size(), 1);
    for (const QString &attribute : shape.attributes)
        QCOMPARE(blocks()[0].toMap().value(attribute).toString(), QString("1"));
    if (!shape.needed.isEmpty()) {
        block->setAttribute(shape.needed, QString());
        QCOMPARE(blocks().size(), 0);
    }
}

QTEST_MAIN(tst_checkParts)
#include "tst_checkParts.moc"
