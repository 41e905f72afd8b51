// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/IndexFixture.h"

#include "support/MessageGuard.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <sys/stat.h>

using namespace Hintreels;

class tst_HRIndex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void context_isReplaced_whenItIsGone();
    void setup_clears_asTheSettingSays_data();
    void setup_clears_asTheSettingSays();
    void operations_ofTheStore_succeedWithoutOne();
    void update_isFlagged();
    void retrieve_returnsNull_whenEmpty();
    void retrieve_tellsWhereTheEntryLies();
    void retrieve_findsTheNewestFile();
    void retrieve_goesOn_whenTheNewestFileHasTheKeyTwice();
    void retrieve_seesAnEditedFile();
    void retrieve_makesAFreshTreeEachTime();
    void retrieve_comparesLocales_data();
    void retrieve_comparesLocales();
    void retrieve_survivesBadFiles_data();
    void retrieve_survivesBadFiles();
    void store_appendsTheFile();
    void indexControlFile_passesOver_data();
    void indexControlFile_passesOver();
    void indexControlFile_doesNotBlock_onANamedPipe();
    void indexControlFile_keepsOneRecordForPathAndDepth();
    void keys_repeatAndKeepTheirOrder();
};

namespace {

class ClearedIndex : public HRIndex
{
public:
    using HRIndex::HRIndex;
    using HRIndex::isInUpdate;
    bool clear() override
    {
        ++clears;
        return true;
    }
    int clears = 0;
};

} // namespace

void tst_HRIndex::context_isReplaced_whenItIsGone()
{
    auto *context = new HRContext;
    HRIndex index(context, {});
    QCOMPARE(&index.context(), context);
    delete context;
    HRContext &own = index.context();
    QCOMPARE(own.parent(), &index);
    QCOMPARE(&qAsConst(index).context(), &own);
}

void tst_HRIndex::setup_clears_asTheSettingSays_data()
{
    QTest::addColumn<QVariant>("clearIndex");
    QTest::addColumn<int>("clears");
    QTest::newRow("absent") << QVariant() << 1;
    QTest::newRow("true") << QVariant(true) << 1;
    QTest::newRow("false") << QVariant(false) << 0;
}

void tst_HRIndex::setup_clears_asTheSettingSays()
{
    QFETCH(QVariant, clearIndex);
    HRContext context;
    if (clearIndex.isValid())
        context.set(clearIndexKey, clearIndex);
    ClearedIndex index(&context, {});
    QVERIFY(index.setup());
    QTEST(index.clears, "clears");
}

void tst_HRIndex::operations_ofTheStore_succeedWithoutOne()
{
    HRIndex index(nullptr, {});
    QVERIFY(index.open());
    QVERIFY(index.clear());
    QVERIFY(index.close());
    QVERIFY(index.remove());
}

void tst_HRIndex::update_isFlagged()
{
    ClearedIndex index(nullptr, {});
    QVERIFY(!index.isInUpdate());
    index.startUpdate();
    QVERIFY(index.isInUpdate());
    index.endUpdate();
    QVERIFY(!index.isInUpdate());
}

void tst_HRIndex::retrieve_returnsNull_whenEmpty()
{
    IndexFixture fixture;
    QVERIFY(!fixture.find("pen"));
    QCOMPARE(fixture.depth, -1);
    QVERIFY(fixture.directory.isNull());
}

void tst_HRIndex::retrieve_tellsWhereTheEntryLies()
{
    IndexFixture fixture;
    fixture.add("A", "a.xml", "<hintreel key='pen'><title>Pen</title></hintreel>");
    const auto tree = fixture.find("pen");
    QVERIFY(tree);
    QCOMPARE(tree->getTagName(), QString("hintreels"));
    QVERIFY(!tree->parent());
    QCOMPARE(fixture.directory, fixture.packagePath("A") + "/Control");
    QCOMPARE(fixture.depth, 2);
    QCOMPARE(tree->childElement("title")->content(), QString("Pen"));
}

void tst_HRIndex::retrieve_findsTheNewestFile()
{
    IndexFixture fixture;
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/><hintreel key='line' n='1'/>");
    fixture.add("A", "b.xml", "<hintreel key='pen' n='2'/>");
    QCOMPARE(fixture.found("pen"), QString("2"));
    QCOMPARE(fixture.found("line"), QString("1"));
    QVERIFY(!fixture.find("Pen"));
}

void tst_HRIndex::retrieve_goesOn_whenTheNewestFileHasTheKeyTwice()
{
    IndexFixture fixture;
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>");
    fixture.add("A", "b.xml", "<hintreel key='pen' n='2'/><hintreel key='pen' n='3'/>");
    QCOMPARE(fixture.found("pen"), QString("1"));
}

void tst_HRIndex::retrieve_seesAnEditedFile()
{
    IndexFixture fixture;
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>");
    QCOMPARE(fixture.found("pen"), QString("1"));
    fixture.packages.writeControl("A", "a.xml", "<hintreel key='pen' n='2'/>");
    QCOMPARE(fixture.found("pen"), QString("2"));
    fixture.packages.writeControl("A", "a.xml", "<hintreel key='ink' n='3'/>");
    QVERIFY(!fixture.find("pen"));
    QCOMPARE(fixture.found("ink"), QString("3"));
    QVERIFY(QFile::remove(fixture.packagePath("A") + "/Control/a.xml"));
    QVERIFY(!fixture.find("ink"));
}

void tst_HRIndex::retrieve_makesAFreshTreeEachTime()
{
    IndexFixture fixture;
    fixture.add("A", "a.xml", "<hintreel key='pen'/>");
    const auto first = fixture.find("pen");
    const auto second = fixture.find("pen");
    QVERIFY(first && second);
    QVERIFY(first != second);
}

void tst_HRIndex::retrieve_comparesLocales_data()
{
    QTest::addColumn<QString>("served");
    QTest::addColumn<QString>("asked");
    QTest::addColumn<bool>("isFound");
    QTest::newRow("none serves all") << ""
                                     << "ja_JP" << true;
    QTest::newRow("same") << "de_DE"
                          << "de_DE" << true;
    QTest::newRow("language alone is its main country") << "de_DE"
                                                        << "de" << true;
    QTest::newRow("other country") << "de_DE"
                                   << "de_AT" << false;
    QTest::newRow("other language") << "de_DE"
                                    << "en_US" << false;
}

void tst_HRIndex::retrieve_comparesLocales()
{
    QFETCH(QString, served);
    QFETCH(QString, asked);
    IndexFixture fixture;
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>", "locale='" + served.toUtf8() + "'");
    QTEST(!fixture.found("pen", asked).isNull(), "isFound");
}

void tst_HRIndex::retrieve_survivesBadFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isFound");
    const auto row = [](const char *name, const QByteArray &content, bool isFound) {
        QTest::newRow(name) << content << isFound;
    };
    row("ends after the entry", "<hintreels ><hintreel key='pen' n='1'/>", false);
    row("ends in the entry", "<hintreels ><hintreel key='pen' n='1'><title>", false);
    row("goes on after the root", "<hintreels ><hintreel key='pen' n='1'/></hintreels>x", true);
    row("wrong end tag", "<hintreels ><hintreel key='pen' n='1'></hintreels>", false);
    row("declaration of nothing", "<hintreels ><!DOCTYPE x><hintreel key='pen'/>", false);
    row(
        "a thousand million laughs",
        "<!DOCTYPE hintreels [<!ENTITY a 'ha'>" +
            [] {
                QByteArray all;
                for (char c = 'b'; c < 'k'; ++c) {
                    const QByteArray use = QByteArray("&") + char(c - 1) + ';';
                    all += QByteArray("<!ENTITY ") + c + " '" + use.repeated(10) + "'>";
                }
                return all;
            }()
            + "]>\n<hintreels ><hintreel key='pen' n='1'>&j;</hintreel></hintreels>",
        false);
}

void tst_HRIndex::retrieve_survivesBadFiles()
{
    QFETCH(QByteArray, content);
    MessageGuard messages;
    IndexFixture fixture;
    const QString file = fixture.packages.write("A.hintreels/Control/a.xml", content);
    fixture.index.indexControlFile(file, fixture.packagePath("A"));
    QTEST(!fixture.found("pen").isNull(), "isFound");
    QVERIFY(!messages.takeMessages().isEmpty());
}

void tst_HRIndex::store_appendsTheFile()
{
    IndexFixture fixture;
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>");
    const QString file = fixture.packages.writeControl(
        "A", "b.xml", "<hintreel key='pen' n='2'/><hintreel key='line' n='2'/>");
    QVERIFY(fixture.index.store(nullptr, QLocale(), file, 7));
    QVERIFY(fixture.index.store(nullptr, QLocale(), file, 7));
    QCOMPARE(fixture.found("pen"), QString("1"));
    QCOMPARE(fixture.found("line"), QString("2"));
    QCOMPARE(fixture.depth, 7);
    QCOMPARE(fixture.index.keys(), QStringList({ "pen", "pen", "line" }));
}

void tst_HRIndex::indexControlFile_passesOver_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("package");
    QTest::newRow("file outside the package") << "A.hintreels/Control/a.xml"
                                              << "B.hintreels";
    QTest::newRow("name that begins alike") << "A.hintreels/Control/a.xml"
                                            << "A.hint";
    QTest::newRow("file that is not there") << "A.hintreels/none.xml"
                                            << "A.hintreels";
    QTest::newRow("directory") << "A.hintreels/Control"
                               << "A.hintreels";
    QTest::newRow("other root") << "A.hintreels/Control/other.xml"
                                << "A.hintreels";
    QTest::newRow("package that is not there") << "C.hintreels/a.xml"
                                               << "C.hintreels";
    QTest::newRow("resource that is no control file") << ":/hintreels/standard/ui/HintreelUI.qml"
                                                      << ":/hintreels/standard";
    QTest::newRow("resource that is not there") << ":/hintreels/standard/ui/none.xml"
                                                << ":/hintreels/standard";
}

void tst_HRIndex::indexControlFile_passesOver()
{
    QFETCH(QString, file);
    QFETCH(QString, package);
    IndexFixture fixture;
    fixture.packages.writeControl("A", "a.xml", "<hintreel key='pen'/>");
    fixture.packages.write("A.hintreels/Control/other.xml", "<other><hintreel key='pen'/></other>");
    fixture.packages.write("B.hintreels/b.xml", "");
    const QDir base(fixture.packages.path());
    fixture.index.indexControlFile(base.filePath(file), base.filePath(package));
    QVERIFY(fixture.index.keys().isEmpty());
    QVERIFY(fixture.index.componentPathsForPackageNamed("A").isEmpty());
}

void tst_HRIndex::indexControlFile_doesNotBlock_onANamedPipe()
{
    IndexFixture fixture;
    const QString directory = fixture.packagePath("A");
    const QString pipe = directory + "/Control/pipe.xml";
    QVERIFY(QDir().mkpath(directory + "/Control"));
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    fixture.index.indexControlFile(pipe, directory);
    fixture.index.store(nullptr, QLocale(), pipe, 2);
    fixture.context.set(keyDataFileKey, pipe);
    fixture.add("A", "a.xml", "<hintreel key='pen' n='1'/>");
    QCOMPARE(fixture.found("pen"), QString("1"));
    QVERIFY(!fixture.find("none"));
    QCOMPARE(fixture.index.keys(), QStringList({ "pen" }));
}

void tst_HRIndex::indexControlFile_keepsOneRecordForPathAndDepth()
{
    IndexFixture fixture;
    const QString file = fixture.packages.write(
        "A.hintreels/B.hintreels/Control/a.xml", "<hintreels ><hintreel key='pen'/></hintreels>");
    const QString outer = fixture.packagePath("A");
    const QString inner = outer + "/B.hintreels";
    fixture.index.indexControlFile(file, outer);
    fixture.index.indexControlFile(file, outer);
    QCOMPARE(fixture.index.keys().size(), 1);
    fixture.index.indexControlFile(file, inner);
    QCOMPARE(fixture.index.keys().size(), 2);
    QVERIFY(fixture.find("pen"));
    QCOMPARE(fixture.depth, 2);
}

void tst_HRIndex::keys_repeatAndKeepTheirOrder()
{
    IndexFixture fixture;
    fixture.add("A", "a.xml", "<hintreel key='pen'/><hintreel key='line'/>");
    fixture.add("A", "b.xml", "<hintreel key='pen'/><hintreel/>", "locale='de_DE'");
    QCOMPARE(fixture.index.keys(), QStringList({ "pen", "pen", "line" }));
}

QTEST_GUILESS_MAIN(tst_HRIndex)
#include "tst_HRIndex.moc"
