// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "content/HRXmlParser.h"
#include "support/MessageGuard.h"

#include <QRegularExpression>
#include <QtTest>

using namespace Hintreels;

/// The parser keeps text that nobody asked for from Qt's reader. Trees and messages are the same as
/// for documents that declare an entity, of which it keeps nothing back.
class tst_SkippedText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reading_isTheSame_data();
    void reading_isTheSame();
};

namespace {

constexpr char DeclaresAnEntity[] = "<!DOCTYPE a [<!ENTITY e 'x'>]>\n";

/// Takes elements named "take", drops those named "drop" with all that they hold, and sees through
/// all others.
int chosen(const QString &tag, const QXmlAttributes &, void *)
{
    if (tag == "take")
        return 2 | 8;
    return tag == "drop" ? 4 | 8 : 4 | 1;
}

QString trees(const QByteArray &document)
{
    QString result;
    QList<QPointer<QObject>> rest; // the parser frees those that an error left open
    {
        HRXmlParser parser(chosen, nullptr);
        for (QObject *object : parser.read(document)) {
            result += qobject_cast<HRXmlElement *>(object)->toXml();
            rest.append(object);
        }
    }
    qDeleteAll(rest);
    return result;
}

/// What a document makes: its trees, and its messages with lines counted from @p firstLine.
QString reading(const QByteArray &document, int firstLine)
{
    MessageGuard messages;
    QString result = trees(document);
    static const QRegularExpression place("Fatal error at (\\d+),");
    for (const QString &message : messages.takeMessages()) {
        const auto match = place.match(message);
        const int line = match.captured(1).toInt() - firstLine;
        result += QString(message).replace(place, QString("Error at %1,").arg(line));
    }
    return result;
}

QString difference(const QByteArray &document)
{
    const QString skipping = reading(document, 0);
    const QString whole = reading(DeclaresAnEntity + document, 1);
    return skipping == whole ? QString()
                             : QString("%1\n%2\n%3").arg(QString(document), skipping, whole);
}

} // namespace

void tst_SkippedText::reading_isTheSame_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::newRow("text") << QByteArray(
        "<a>see\nthrough<take k='1'>ta\rken<b>left\r\nout</b>go on</take"
        "><drop>long lo]ng<c/ ><d x='>'>\nmore</d>end\n </drop>x</a>");
    QTest::newRow("sections") << QByteArray(
        "<a>\n<drop> <![CDATA[ab]c]]d>e\r\n<f>&g;]]]>tail<![CDATA[]]><b>h</b></drop>"
        "<take><![CDATA[kept]]></take></a>");
    QTest::newRow("signs") << QByteArray("<a><drop>x &amp; y &#65; z<!-- a <b> -->u<?p <q>?>v"
                                         "</drop >w</a>\n<!-- end -->\n");
    QTest::newRow("twice") << QByteArray("<drop>one</drop><drop>two</drop>");
    QTest::newRow("behind the end") << QByteArray("<drop>one</drop>two");
    QTest::newRow("nothing") << QByteArray();
}

/// The documents themselves, and each with any one character missing or another, or cut off there.
void tst_SkippedText::reading_isTheSame()
{
    QFETCH(QByteArray, document);
    QCOMPARE(difference(document), QString());
    for (int i = 0; i < document.size(); ++i) {
        QCOMPARE(difference(document.left(i)), QString());
        QCOMPARE(difference(QByteArray(document).remove(i, 1)), QString());
        for (const char sign : QByteArray("<>&]/[!?\r\n\"';x"))
            QCOMPARE(
                difference(QByteArray(document).replace(i, 1, QByteArray(1, sign))), QString());
    }
}

QTEST_APPLESS_MAIN(tst_SkippedText)
#include "tst_SkippedText.moc"
