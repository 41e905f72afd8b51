// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "content/HRXmlParser.h"
#include "support/MessageGuard.h"

#include <QPointer>
#include <QThread>
#include <QtTest>

#include <memory>

using namespace Hintreels;

namespace {

/// How one document fared. The times are those of a loaded machine under a sanitizer; without the
/// parser's guards the documents here take from many seconds to for ever, or crash.
struct Reading
{
    explicit Reading(const QString &document)
    {
        QElapsedTimer timer;
        timer.start();
        HRXmlParser parser;
        QXmlInputSource source;
        source.setData(document);
        const QPointer<QObject> tree(parser.read(source).value(0));
        elements = tree ? tree->findChildren<HRXmlElement *>().size() + 1 : 0;
        delete tree;
        isQuick = timer.elapsed() < 10000;
    }

    int elements;
    bool isQuick;
};

/// Calls a function on a thread with this stack.
template <typename Function>
void runOnStack(uint bytes, Function function)
{
    const std::unique_ptr<QThread> thread(QThread::create(function));
    thread->setStackSize(bytes);
    thread->start();
    thread->wait();
}

/// What is done with a tree, in the end by a parser whose reading failed.
void readSearchWriteAndDelete(const QString &text)
{
    auto parser = std::make_unique<HRXmlParser>();
    const QPointer<QObject> tree(parser->read(text.toUtf8()).value(0));
    if (const auto *element = qobject_cast<HRXmlElement *>(tree.data())) {
        element->childElement("absent");
        element->childElementList(QString());
        element->toXml(-text.size()); // so far left of the margin that no level is indented
    }
    parser.reset();
    delete tree;
}

QString entity(const QString &name, const QString &value)
{
    return QString("<!ENTITY %1 '%2'>").arg(name, value);
}

QString document(const QString &declarations, const QString &body)
{
    return "<!DOCTYPE a [" + declarations + "]><a>" + body + "</a>";
}

/// Entities that each refer ten times to the next one.
QString laughs(int levels)
{
    QString declarations;
    for (int i = 0; i < levels; ++i) {
        const QString next = QString("&l%1;").arg(i + 1);
        declarations += entity(QString("l%1").arg(i), next.repeated(10));
    }
    return declarations + entity(QString("l%1").arg(levels), "lol");
}

QString prefixes(int count, int length)
{
    QString attributes;
    for (int i = 0; i < count; ++i)
        attributes += QString(" xmlns:p%1='u'").arg(i, length, 10, QChar('0'));
    return attributes;
}

/// Elements in each other that each declare a prefix of their own.
QString deepPrefixes(int levels)
{
    QString elements;
    for (int i = 0; i < levels; ++i)
        elements += QString("<a xmlns:p%1='u'>").arg(i);
    return elements + QString("</a>").repeated(levels);
}

} // namespace

class tst_HRXmlParserSafety : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void read_refuses_data();
    void read_refuses();
    void read_accepts_data();
    void read_accepts();
    void read_survivesDeepNesting_whateverTheStack_data();
    void read_survivesDeepNesting_whateverTheStack();
    void read_takesFiveThousandLevels_onEightMegabytes();
    void read_takesHalfOfWhatIsLeft_deepInTheStack();
    void read_countsPrefixesInScope();
    void read_takesAllEntitiesOfHtml();
    void read_goesOnAfterRefusal();
    void read_refusesAnew_afterDocumentWithoutEntities();
};

void tst_HRXmlParserSafety::read_refuses_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("reason");

    const QString tooMuch = "entities expand to too much text";
    const QString tooDeep = "elements are nested too deeply";
    const QString x4000 = QString(4000, 'x');

    QTest::newRow("billion laughs") << document(laughs(9), "&l0;") << tooMuch;
    QTest::newRow("laughs in an attribute") << document(laughs(9), "<b c='&l0;'/>") << tooMuch;
    QTest::newRow("one large entity often")
        << document(entity("e", x4000), QString("&e;").repeated(100000)) << tooMuch;
    QTest::newRow("large entity in attributes")
        << document(entity("e", x4000), QString("<b c='&e;'/>").repeated(50000)) << tooMuch;
    QTest::newRow("elements in an entity") << document(entity("e", QString("<b/>").repeated(1000)),
        QString("&e;").repeated(2000)) << tooMuch;
    QTest::newRow("entity of itself") << document(entity("e", "x&e;"), "&e;") << tooMuch;
    QTest::newRow("references that arise in reading") << document(
        entity("laugh", x4000) + entity("a", "&#38;lau"), QString("&a;gh;").repeated(100000))
                                                      << tooMuch;
    QTest::newRow("parameter entity often")
        << document(entity("% p", "<!--" + x4000 + "-->"), "")
               .replace("]>", QString("%p;").repeated(100000) + "]>")
        << tooMuch;
    QTest::newRow("parameter entity in a value")
        << document(entity("% p", x4000) + entity("e", QString("%p;").repeated(100000)), "")
        << tooMuch;
    QTest::newRow("deep elements") << QString("<a>").repeated(100000) << tooDeep;
    QTest::newRow("deep elements in an entity")
        << document(entity("e", QString("<b>").repeated(100000)), "&e;") << tooDeep;
    QTest::newRow("deep content model")
        << document("<!ELEMENT a " + QString("(").repeated(500000), "") << tooDeep;
    QTest::newRow("deep content model in an entity")
        << document(entity("% p", "<!ELEMENT a " + QString("(").repeated(500000)) + "%p;", "")
        << tooDeep;
    QTest::newRow("many prefixes")
        << "<a" + prefixes(2000, 5) + ">" + QString("<b/>").repeated(20000) + "</a>"
        << "too many or too long namespace prefixes";
    QTest::newRow("long prefixes")
        << "<a" + prefixes(20, 20000) + ">" + QString("<b/>").repeated(20000) + "</a>"
        << "too many or too long namespace prefixes";
    QTest::newRow("prefixes at every level")
        << deepPrefixes(5000) << "too many or too long namespace prefixes";
    QString many;
    for (int i = 0; i < 20000; ++i)
        many += entity(QString("e%1").arg(i), "&e0;");
    QTest::newRow("many entities") << document(many, "") << "too many entities are declared";
}

void tst_HRXmlParserSafety::read_refuses()
{
    QFETCH(QString, text);
    QFETCH(QString, reason);
    MessageGuard messages;

    const Reading reading(text);

    QVERIFY(reading.isQuick);
    const QStringList logged = messages.takeMessages();
    QCOMPARE(logged.size(), 1);
    const QRegularExpression form(QString("^Fatal error at \\d+,\\d+ : %1$").arg(reason));
    QVERIFY2(form.match(logged.first()).hasMatch(), qPrintable(logged.first()));
}

void tst_HRXmlParserSafety::read_accepts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("elements");

    const QString nested = QString("<a>").repeated(1000) + QString("</a>").repeated(1000);
    QTest::newRow("a thousand levels") << nested << 1000;
    QTest::newRow("many siblings") << "<a>" + QString("<b/>").repeated(100000) + "</a>" << 100001;
    QTest::newRow("entities below the limit")
        << document(laughs(3), QString("<b>&l0;</b>").repeated(100)) << 101;
    QTest::newRow("unused entities") << document(laughs(3), "") << 1;
    QString xhtml;
    for (int i = 0; i < 253; ++i)
        xhtml += entity(QString("e%1").arg(i), "&#38;#160;");
    QTest::newRow("as many entities as XHTML has") << document(xhtml, "&e7;<b/>") << 2;
    QString most;
    for (int i = 0; i < 4096; ++i)
        most += entity(QString("e%1").arg(i), "&#38;#160;");
    QTest::newRow("4,096 entities") << document(most, "&e4095;<b/>") << 2;
    QTest::newRow("a few prefixes") << "<a" + prefixes(30, 20) + "/>" << 1;
    QTest::newRow("33 prefixes") << "<a" + prefixes(33, 20) + "><b/></a>" << 2;
    QTest::newRow("many prefixes for few elements") << "<a" + prefixes(1000, 20) + "/>" << 1;
    QTest::newRow("a prefix of 65 letters") << "<a" + prefixes(1, 64) + "/>" << 1;
    QTest::newRow("a prefix of 1,000 letters in a long document")
        << "<a" + prefixes(1, 999) + ">" + QString("<b/>").repeated(100000) + "</a>" << 100001;
    QTest::newRow("the same prefix again and again")
        << "<a>" + QString("<b xmlns='u' xmlns:p='u'/>").repeated(1000) + "</a>" << 1001;
    QTest::newRow("long text") << "<a>" + QString(9 * 1024 * 1024, 'x') + "</a>" << 1;
}

void tst_HRXmlParserSafety::read_accepts()
{
    QFETCH(QString, text);
    MessageGuard messages;
    const Reading reading(text);
    QVERIFY(reading.isQuick);
    QTEST(reading.elements, "elements");
}

void tst_HRXmlParserSafety::read_survivesDeepNesting_whateverTheStack_data()
{
    QTest::addColumn<uint>("stack");
    QTest::addColumn<QString>("text");

    QString groups;
    for (int i = 0; i < 1000; ++i)
        groups += entity(QString("% g%1").arg(i), QString(250, '(') + QString("%g%1;").arg(i + 1));
    const QMap<QString, QString> texts{
        { "elements", QString("<a>").repeated(100000) },
        { "elements in an entity", document(entity("e", QString("<b>").repeated(100000)), "&e;") },
        { "groups", document("<!ELEMENT a " + QString("(").repeated(100000), "") },
        { "groups in entities", document(groups + "<!ELEMENT a %g0;", "") },
    };
    for (const uint kibibytes : { 256, 512, 1024, 2048, 8192 }) {
        for (auto text = texts.begin(); text != texts.end(); ++text)
            QTest::newRow(qPrintable(QString("%1 KiB: %2").arg(kibibytes).arg(text.key())))
                << kibibytes * 1024 << *text;
    }
}

void tst_HRXmlParserSafety::read_survivesDeepNesting_whateverTheStack()
{
    QFETCH(uint, stack);
    QFETCH(QString, text);
    MessageGuard messages;
    runOnStack(stack, [&text] { readSearchWriteAndDelete(text); });
    QCOMPARE(messages.takeMessages().size(), 1);
}

void tst_HRXmlParserSafety::read_takesFiveThousandLevels_onEightMegabytes()
{
    constexpr int levels = 5000;
    const QByteArray text
        = QByteArray("<a>").repeated(levels) + QByteArray("</a>").repeated(levels);
    int found = 0;
    int lines = 0;
    runOnStack(8 * 1024 * 1024, [&] {
        HRXmlParser parser;
        const std::unique_ptr<QObject> tree(parser.read(text).value(0));
        const auto *element = qobject_cast<HRXmlElement *>(tree.get());
        found = element ? element->childElementList(QString()).size() + 1 : 0;
        // So far left of the margin that no level is indented.
        lines = element ? element->toXml(-2 * levels).count('\n') + 1 : 0;
    });
    QCOMPARE(found, levels);
    QCOMPARE(lines, 2 * levels - 1);
}

/// The levels that are read where a frame of this size lies above.
template <int bytes>
Q_NEVER_INLINE int levelsBelowFrame()
{
    volatile char frame[bytes] = {};
    return Reading(QString("<a>").repeated(100000)).elements + frame[0];
}

void tst_HRXmlParserSafety::read_takesHalfOfWhatIsLeft_deepInTheStack()
{
    MessageGuard messages;
    int shallow = 0;
    int deep = 0;
    runOnStack(1024 * 1024, [&] {
        shallow = levelsBelowFrame<1024>();
        deep = levelsBelowFrame<512 * 1024>();
    });
    QCOMPARE(messages.takeMessages().size(), 2);
    const QString levels = QString("%1 and %2").arg(shallow).arg(deep);
    QVERIFY2(deep > 0.4 * shallow && deep < 0.6 * shallow, qPrintable(levels));
}

void tst_HRXmlParserSafety::read_countsPrefixesInScope()
{
    QString siblings;
    for (int i = 0; i < 1000; ++i)
        siblings += QString("<p%1:b xmlns:p%1='u'/>").arg(i);
    MessageGuard messages;
    QCOMPARE(Reading("<a>" + siblings + "</a>").elements, 1001);
}

void tst_HRXmlParserSafety::read_takesAllEntitiesOfHtml()
{
    // HTML 5 has 2,231, some of two characters.
    QString html;
    for (int i = 0; i < 2231; ++i)
        html += entity(QString("name%1").arg(i), "&#38;#8287;&#38;#8202;");
    MessageGuard messages;
    const Reading reading(document(html, "&name0;<b>&name2230;</b>"));
    QVERIFY(reading.isQuick);
    QCOMPARE(reading.elements, 2);
}

void tst_HRXmlParserSafety::read_goesOnAfterRefusal()
{
    MessageGuard messages;
    HRXmlParser parser;
    QXmlInputSource bad;
    bad.setData(document(laughs(9), "&l0;"));
    qDeleteAll(parser.read(bad));
    QCOMPARE(messages.takeMessages().size(), 1);

    QXmlInputSource good;
    good.setData(document(laughs(1), "&l0;"));
    const std::unique_ptr<QObject> tree(parser.read(good).value(0));
    QVERIFY(tree);
    QCOMPARE(tree->property("content").toString(), QString("lol").repeated(10));
}

void tst_HRXmlParserSafety::read_refusesAnew_afterDocumentWithoutEntities()
{
    MessageGuard messages;
    HRXmlParser parser;
    for (int round = 0; round < 2; ++round) {
        qDeleteAll(parser.read("<a>&amp;</a>"));
        qDeleteAll(parser.read(document(laughs(9), "&l0;").toUtf8()));
        QCOMPARE(messages.takeMessages().size(), 1);
    }
}

QTEST_GUILESS_MAIN(tst_HRXmlParserSafety)
#include "tst_HRXmlParserSafety.moc"
