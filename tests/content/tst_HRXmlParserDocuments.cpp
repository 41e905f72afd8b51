// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/ParserFixture.h"
#include "support/MessageGuard.h"

#include <QBuffer>
#include <QtTest>

#include <memory>

using namespace Hintreels;

class tst_HRXmlParserDocuments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void read_includesSmallEntities();
    void read_leavesOutExternalEntities();
    void read_returnsNothing_whenDocumentIsUnusable_data();
    void read_returnsNothing_whenDocumentIsUnusable();
    void read_returnsFinishedElements_whenDocumentBreaksOff();
    void read_startsAfresh_whenReadBefore();
    void read_takesDeviceInPieces();
    void read_decodesDevice_data();
    void read_decodesDevice();
    void destructor_deletesOpenElements_afterFailure();
    void destructor_leavesResult_afterSuccess();
};

void tst_HRXmlParserDocuments::read_includesSmallEntities()
{
    HRXmlParser parser;
    const Objects objects(parser,
        "<!DOCTYPE a [<!ENTITY n 'Hint&w;'><!ENTITY w 'reels'><!ENTITY e '<b>&n;</b>'>]>"
        "<a t='by &n;'>the &n;.&e;</a>");
    QCOMPARE(outline(objects), QString("a'the Hintreels.'{b'Hintreels'}"));
    QCOMPARE(objects.element()->attribute("t"), QString("by Hintreels"));
}

void tst_HRXmlParserDocuments::read_leavesOutExternalEntities()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write("secret");
    file.flush();
    HRXmlParser parser;
    const Objects objects(
        parser, QString("<!DOCTYPE a [<!ENTITY e SYSTEM '%1'>]><a>1&e;2</a>").arg(file.fileName()));
    QCOMPARE(outline(objects), QString("a'12'"));
}

void tst_HRXmlParserDocuments::read_returnsNothing_whenDocumentIsUnusable_data()
{
    QTest::addColumn<QString>("document");
    QTest::addColumn<QString>("message");

    QTest::newRow("empty") << ""
                           << "Fatal error at 1,1 : unexpected end of file";
    QTest::newRow("no element") << "<?xml version='1.0'?>\n"
                                << "Fatal error at 2,1 : unexpected end of file";
    QTest::newRow("not XML") << "{}"
                             << "Fatal error at 1,1 : error occurred while parsing element";
    QTest::newRow("broken tag") << "\n<a"
                                << "Fatal error at 2,3 : unexpected end of file";
}

void tst_HRXmlParserDocuments::read_returnsNothing_whenDocumentIsUnusable()
{
    QFETCH(QString, document);
    QFETCH(QString, message);
    MessageGuard messages;
    HRXmlParser parser;
    const Objects objects(parser, document);
    QCOMPARE(objects.size(), 0);
    QCOMPARE(messages.takeMessages(), QStringList{ message });
}

void tst_HRXmlParserDocuments::read_returnsFinishedElements_whenDocumentBreaksOff()
{
    MessageGuard messages;
    HRXmlParser parser;
    const Objects objects(parser, "<a>\n<b>1</b>\n<c>2</b></a>");
    QCOMPARE(objects.element()->childElement("b")->content(), QString("1"));
    QCOMPARE(objects.element()->childElement("c")->content(), QString("2"));
    QCOMPARE(messages.takeMessages(), QStringList{ "Fatal error at 3,8 : tag mismatch" });
}

void tst_HRXmlParserDocuments::read_startsAfresh_whenReadBefore()
{
    MessageGuard messages;
    Answers answers{ { { "skipped", 12 } }, {} };
    HRXmlParser parser(Answers::give, &answers);
    const Objects first(parser, "<a><skipped><b>");
    const Objects second(parser, "<c><d/></c>");
    const Objects third(parser, "<e/>");
    QCOMPARE(outline(first), QString("a"));
    QCOMPARE(outline(second), QString("c{d}"));
    QCOMPARE(outline(third), QString("e"));
    QCOMPARE(messages.takeMessages().size(), 1);
}

void tst_HRXmlParserDocuments::read_takesDeviceInPieces()
{
    const QString text = QString(u8"ä€😀").repeated(3000);
    QBuffer buffer;
    buffer.setData("<a>" + text.toUtf8() + "<b/></a>");
    HRXmlParser parser;
    const QXmlInputSource source(&buffer);
    const QList<QObject *> objects = parser.read(&source);
    const std::unique_ptr<QObject> tree(objects.value(0));
    QCOMPARE(objects.size(), 1);
    QCOMPARE(outline(tree.get()), "a'" + text + "'{b}");
}

void tst_HRXmlParserDocuments::read_decodesDevice_data()
{
    QTest::addColumn<QByteArray>("document");

    const QString text = QStringLiteral("<a>ä</a>");
    const QString latin1 = "<?xml version='1.0' encoding='ISO-8859-1'?>" + text;
    const QString utf16 = QChar(QChar::ByteOrderMark) + text;
    QTest::newRow("UTF-8") << text.toUtf8();
    QTest::newRow("UTF-8 with a mark") << "\xef\xbb\xbf" + text.toUtf8();
    QTest::newRow("Latin-1") << latin1.toLatin1();
    QTest::newRow("UTF-16") << QByteArray(
        reinterpret_cast<const char *>(utf16.utf16()), utf16.size() * int(sizeof(QChar)));
}

void tst_HRXmlParserDocuments::read_decodesDevice()
{
    QFETCH(QByteArray, document);
    QBuffer buffer(&document);
    HRXmlParser parser;
    const std::unique_ptr<QObject> tree(parser.read(QXmlInputSource(&buffer)).value(0));
    QVERIFY(tree);
    QCOMPARE(outline(tree.get()), QString("a'ä'"));
}

void tst_HRXmlParserDocuments::destructor_deletesOpenElements_afterFailure()
{
    MessageGuard messages;
    auto parser = std::make_unique<HRXmlParser>();
    const Objects objects(*parser, "<a><b/><c><d/>");
    QCOMPARE(outline(objects), QString("a{b c{d}}"));
    QPointer<QObject> tree(objects.at(0));

    parser.reset();

    QVERIFY(!tree);
    QVERIFY(!objects.at(0));
    QCOMPARE(
        messages.takeMessages(), QStringList{ "Fatal error at 1,15 : unexpected end of file" });
}

void tst_HRXmlParserDocuments::destructor_leavesResult_afterSuccess()
{
    auto parser = std::make_unique<HRXmlParser>();
    const Objects objects(*parser, "<a><b/></a>");
    parser.reset();
    QVERIFY(objects.at(0));
    QCOMPARE(outline(objects), QString("a{b}"));
}

QTEST_GUILESS_MAIN(tst_HRXmlParserDocuments)
#include "tst_HRXmlParserDocuments.moc"
