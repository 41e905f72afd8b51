// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "index/control/HRControlDigest_p.h"
#include "index/control/HRControlTree_p.h"
#include "index/control/elementFilters_p.h"
#include "support/MessageGuard.h"
#include "support/TestPackage.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QtTest>

using namespace Hintreels;

class tst_HRControlDigest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void search_findsPlainFiles_data();
    void search_findsPlainFiles();
    void search_leavesUnusualFilesToTheParser_data();
    void search_leavesUnusualFilesToTheParser();
    void search_isQuick_whateverTheFile_data();
    void search_isQuick_whateverTheFile();
    void parse_promisesAnything_whenRootsAreNested();
    void parse_takesTheLastLocale_whenItStandsTwice();
    void readings_neverDenyWhatLoadingFinds();
};

namespace {

HRControlDigest parsedDigest(const QString &file)
{
    HRControlErrors errors;
    return digestByParsing(file, errors);
}

const QLocale English("en_US");
const QLocale German("de_DE");

/// Which of the keys `a`, `b` and `é` a digest may serve to English and German.
QString served(const HRControlDigest &digest)
{
    QString all;
    for (const char *key : { "a", "b", "\xC3\xA9" }) {
        const quint32 number = keyNumber(QString::fromUtf8(key));
        all += digest.mayServe(number, English) ? "E" : "-";
        all += digest.mayServe(number, German) ? "D" : "-";
    }
    return all;
}

/// What loading a key from the file gives, with the rules of HRIndex::load().
bool loads(const QString &file, const QString &key, const QLocale &locale)
{
    HRControlErrors errors;
    const auto tree = readOnlyTree(file, generateContentElement, key, errors);
    return tree && tree->children().size() == 1 && servesLocale(*tree, locale);
}

} // namespace

void tst_HRControlDigest::search_findsPlainFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QByteArray &bytes, const char *expected) {
        QTest::newRow(name) << bytes << expected;
    };
    row("one entry", "<hintreels><hintreel key='a'/></hintreels>", "ED----");
    row("locale", "<hintreels locale=\"de_DE\"><hintreel key=\"a\"/></hintreels>", "-D----");
    row("empty locale", "<hintreels locale=''><hintreel key='b'/></hintreels>", "--ED--");
    row("two entries", "<hintreels><hintreel key='b'/><hintreel key='a'/></hintreels>", "EDED--");
    row("other attributes", "<hintreels x='1'><hintreel n='2' key='a' m=''/></hintreels>",
        "ED----");
    row("white space", "<hintreels\n>\n<hintreel\n\tkey = 'a' ></hintreel></hintreels>", "ED----");
    row("other scripts", "<hintreels><hintreel key='\xC3\xA9'/></hintreels>", "----ED");
    row("declaration",
        "<?xml version='1.0' encoding = 'utf-8'?>\n<!-- x --> <!-- y -->\n<hintreels><hintreel "
        "key='a'/></hintreels>",
        "ED----");
    row("byte-order mark", "\xEF\xBB\xBF<hintreels><hintreel key='a'/></hintreels>", "ED----");
    row("blank in a value", "<hintreels x=' '><hintreel x='a b' key='a'/></hintreels>", "ED----");
    row("no blank before the end", "<hintreels/><hintreel key='a'/>", "ED----");
    row("tag cut at the end of the file", "<hintreels><hintreel key='a'/><hintreel", "ED----");
    row("character beside the dropped one",
        "<hintreels>\xEF\xBF\xBD\xEF\xBF<hintreel key='a'/></hintreels>\xEF", "ED----");
    row("declaration without an encoding",
        "<?xml version='1.0'?><hintreels><hintreel key='a'/></hintreels>", "ED----");
    row("tag of 4,096 bytes",
        "<hintreels><hintreel x='" + QByteArray(4096 - 15, 'x') + "' key='a'/></hintreels>",
        "ED----");
    row("no key", "<hintreels><hintreel name='a'/><hintreel/></hintreels>", "------");
    row("key without a value", "<hintreels><hintreel key/></hintreels>", "------");
    row("longer name", "<hintreels><hintreelx key='a'/></hintreels>", "------");
    row("key of another tag", "<hintreels><other key='a'/></hintreels>", "------");
    row("in a comment, at worst too much", "<hintreels><!--<hintreel key='a'/>--></hintreels>",
        "ED----");
}

void tst_HRControlDigest::search_findsPlainFiles()
{
    QFETCH(QByteArray, bytes);
    const std::optional<HRControlDigest> digest = digestBySearching(bytes);
    QVERIFY(digest);
    QTEST(served(*digest), "expected");
}

void tst_HRControlDigest::search_leavesUnusualFilesToTheParser_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray entry = "<hintreel key='a'/></hintreels>";
    const auto row
        = [](const char *name, const QByteArray &bytes) { QTest::newRow(name) << bytes; };
    row("empty", "");
    row("other root", "<other><hintreel key='a'/></other>");
    row("document type", "<!DOCTYPE hintreels []><hintreels>" + entry);
    row("instruction", "<?x y?><hintreels>" + entry);
    row("other encoding", "<?xml version='1.0' encoding='ISO-8859-1'?><hintreels>" + entry);
    row("UTF-16", QByteArray("\xFF\xFE<\0h\0", 6));
    row("unfinished comment", "<!-- <hintreels>" + entry);
    row("nested root", "<hintreels><hintreels>" + entry);
    row("reference in a key", "<hintreels><hintreel key='&#97;'/></hintreels>");
    row("line break in a key", "<hintreels><hintreel key='a\nb'/></hintreels>");
    row("reference in the locale", "<hintreels locale='de&#95;DE'>" + entry);
    row("locale twice", "<hintreels locale='de' locale='en'>" + entry);
    row("broken UTF-8 in a key", "<hintreels><hintreel key='\xC3'/></hintreels>");
    row("control character in a key", "<hintreels><hintreel key='\x1f'/></hintreels>");
    row("byte of no character in a key", "<hintreels><hintreel key='\x80'/></hintreels>");
    row("longer name of the root", "<hintreelsx><hintreel key='a'/></hintreelsx>");
    row("nothing behind the root's name", "<hintreels");
    row("no name", "<hintreels><hintreel ='x' key='a'/></hintreels>");
    row("no name at the root", "<hintreels ='x'>" + entry);
    row("nothing behind the equals sign", "<hintreels><hintreel key=");
    row("tag that never ends", "<hintreels><hintreel key='a'");
    row("stroke behind a value", "<hintreels><hintreel key='a'/ ></hintreels>");
    row("unfinished declaration", "<?xml version='1.0'");
    row("second comment unfinished", "<!-- --><!-- <hintreels>" + entry);
    row("tag of 4,097 bytes",
        "<hintreels><hintreel x='" + QByteArray(4097 - 15, 'x') + "' key='a'/></hintreels>");
    row("no quotes", "<hintreels><hintreel key=a/></hintreels>");
    row("no end quote", "<hintreels><hintreel key='a/></hintreels>");
    row("tag in a value", "<hintreels><hintreel x='<' key='a'/></hintreels>");
    row("dropped character in the tag", "<hintreels><hint\xEF\xBF\xBEreel key='a'/></hintreels>");
    row("endless tag",
        "<hintreels><hintreel " + QByteArray("x='1' ").repeated(1000) + "key='a'/></hintreels>");
}

void tst_HRControlDigest::search_leavesUnusualFilesToTheParser()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!digestBySearching(bytes));
}

void tst_HRControlDigest::search_isQuick_whateverTheFile_data()
{
    QTest::addColumn<QByteArray>("bytes");
    constexpr int Million = 1'000'000;
    QTest::newRow("brackets") << "<hintreels>" + QByteArray(Million, '<');
    QTest::newRow("entries") << "<hintreels>" + QByteArray("<hintreel ").repeated(Million / 10);
    QTest::newRow("quotes") << "<hintreels>" + QByteArray("<hintreel x='").repeated(Million / 13);
    QTest::newRow("white") << "<hintreels>"
            + QByteArray("<hintreel" + QByteArray(4000, ' ')).repeated(250);
    QTest::newRow("dropped") << QByteArray("\xEF\xBF").repeated(Million / 2);
    QTest::newRow("comments") << QByteArray("<!---->").repeated(Million / 7);
}

void tst_HRControlDigest::search_isQuick_whateverTheFile()
{
    QFETCH(QByteArray, bytes);
    QElapsedTimer timer;
    timer.start();
    digestBySearching(bytes);
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
}

void tst_HRControlDigest::parse_promisesAnything_whenRootsAreNested()
{
    const TestPackages packages;
    const QString file = packages.write("a.xml", "<hintreels><hintreels/></hintreels>");
    QVERIFY(loads(file, "whatever", English));
    QCOMPARE(served(parsedDigest(file)), QString("EDEDED"));
}

void tst_HRControlDigest::parse_takesTheLastLocale_whenItStandsTwice()
{
    const TestPackages packages;
    const QString file = packages.write(
        "a.xml", "<hintreels locale='de_DE' locale='en_US'><hintreel key='a'/></hintreels>");
    QVERIFY(loads(file, "a", English));
    QCOMPARE(served(parsedDigest(file)), QString("E-----"));
}

void tst_HRControlDigest::readings_neverDenyWhatLoadingFinds()
{
    const QList<QByteArray> pieces{ "<hintreels>", "<hintreels locale='de_DE'>",
        "<hintreels locale='en_US' search='x'>", "</hintreels>", "<hintreel key='a'/>",
        "<hintreel key=\"b\" >", "</hintreel>", "<hintreel n='>' key='a'>", "<hintreel/>",
        "<hintreel key='&#97;'/>", "<hintreel key='\xC3\xA9'/>", "<!--", "-->", "<![CDATA[", "]]>",
        "text", "&e;", "<?xml version='1.0'?>", "<?xml version='1.0' encoding='latin1'?>",
        "<!DOCTYPE hintreels [<!ENTITY e \"<hintreel key='a'/>\">]>", "<other>", "</other>", "\n",
        "\xEF\xBF\xBE", "\xEF\xBB\xBF", "<", "'", "\"", "<?pi?>", "<hintreel", " key='b'", ">" };
    QRandomGenerator random(20261121);
    const TestPackages packages;
    int found = 0;
    for (int round = 0; round < 3000; ++round) {
        MessageGuard messages;
        QByteArray bytes = random.bounded(2) ? "<hintreels>" : "";
        const int count = random.bounded(1, 9);
        for (int i = 0; i < count; ++i)
            bytes += pieces.at(random.bounded(pieces.size()));
        bytes += random.bounded(4) ? "</hintreels>" : "";
        const QString file = packages.write("a.xml", bytes);
        const auto searched = digestBySearching(bytes);
        const HRControlDigest parsed = parsedDigest(file);
        for (const QString &key : { QString("a"), QString("b"), QString::fromUtf8("\xC3\xA9") }) {
            for (const QLocale &locale : { English, German }) {
                if (!loads(file, key, locale))
                    continue;
                ++found;
                QVERIFY2(parsed.mayServe(keyNumber(key), locale), bytes.constData());
                if (searched)
                    QVERIFY2(searched->mayServe(keyNumber(key), locale), bytes.constData());
            }
        }
        messages.takeMessages();
    }
    QVERIFY2(found > 100, qPrintable(QString::number(found)));
}

QTEST_GUILESS_MAIN(tst_HRControlDigest)
#include "tst_HRControlDigest.moc"
