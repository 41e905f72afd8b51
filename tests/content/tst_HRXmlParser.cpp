// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/ParserFixture.h"
#include "support/MessageGuard.h"
#include "support/MisleadingNames.h"

#include <QtTest>

using namespace Hintreels;

namespace {

/// A class of content that knows nothing of attributes: they arrive as properties.
class Note : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(int rank MEMBER rank)
    Q_PROPERTY(QString fixed READ fixed)
    Q_PROPERTY(QString tagName MEMBER tagName)

public:
    Q_INVOKABLE explicit Note(QObject *parent)
        : QObject(parent)
    {
    }
    Q_INVOKABLE void appendContent(const QString &content) { text += content; }

    QString fixed() const { return QStringLiteral("fixed"); }

    QString title;
    int rank = 0;
    QString tagName;
    QString text;
};

/// A class without any text or name.
class Plain : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit Plain(QObject *parent)
        : QObject(parent)
    {
    }
};

/// Tells of whitespace before each element, as readers do that know the type of the document.
int tellWhitespace(const QString &, const QXmlAttributes &, void *parser)
{
    static_cast<HRXmlParser *>(parser)->contentHandler()->ignorableWhitespace(" \n");
    return 1;
}

/// Deletes all that was read before "c", as no filter should.
int deleteTree(const QString &qName, const QXmlAttributes &, void *context)
{
    const auto *first = static_cast<QPointer<QObject> *>(context)->data();
    if (qName == "c" && first)
        delete first->parent();
    return 1;
}

/// The object read last.
QPointer<QObject> lastMade;

/// Tells of itself, so that a filter can find it.
class Known : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit Known(QObject *parent)
        : QObject(parent)
    {
        lastMade = this;
    }
};

} // namespace

class tst_HRXmlParser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaultElement_isElement();
    void metaObjectForElement_knowsRegisteredOnly();
    void read_buildsTree();
    void read_handsOverObjectsWithoutParent();
    void read_obeysFilter_data();
    void read_obeysFilter();
    void filter_seesNamesAndAttributes();
    void readText_endsBehindTag_inFilter();
    void readText_endsAtError();
    void read_choosesClassByLocalName();
    void read_usesDefault_whenRegisteredClassIsNull();
    void read_writesProperties_whenClassTakesNoAttributes();
    void read_stops_whenPropertyIsMissing();
    void read_goesOn_whenPropertyRejectsValue();
    void read_stops_whenNoObjectCanBeMade();
    void read_stops_whenThereIsNoClass();
    void messages_areOneLine_data();
    void messages_areOneLine();
    void read_dropsText_whenClassTakesNone();
    void read_trimsTagName();
    void read_keepsAttributes_whenElementTakesThem();
    void read_appendsTextInOrder();
    void ignorableWhitespace_isText();
    void read_survives_whenItsFilterDeletesTheTree();
};

void tst_HRXmlParser::defaultElement_isElement()
{
    HRXmlParser parser;
    QCOMPARE(parser.defaultElement(), &HRXmlElement::staticMetaObject);
    parser.setDefaultElement(&Note::staticMetaObject);
    QCOMPARE(parser.defaultElement(), &Note::staticMetaObject);
}

void tst_HRXmlParser::metaObjectForElement_knowsRegisteredOnly()
{
    HRXmlParser parser;
    QCOMPARE(parser.metaObjectForElement("note"), nullptr);
    parser.registerElement("note", &Plain::staticMetaObject);
    parser.registerElement("note", &Note::staticMetaObject);
    QCOMPARE(parser.metaObjectForElement("note"), &Note::staticMetaObject);
    parser.unregisterElement("note");
    QCOMPARE(parser.metaObjectForElement("note"), nullptr);
}

void tst_HRXmlParser::read_buildsTree()
{
    HRXmlParser parser;
    const Objects objects(parser, "<a>1<b>2<c/>3</b><b x='y'/>4</a>");
    QCOMPARE(outline(objects), QString("a'14'{b'23'{c} b}"));
    QCOMPARE(
        objects.element()->toXml(), QString("<a>\n  <b>\n    <c/>\n  </b>\n  <b x=\"y\"/>\n</a>"));
}

void tst_HRXmlParser::read_handsOverObjectsWithoutParent()
{
    Answers answers{ { { "a", 4 } }, {} };
    HRXmlParser parser(Answers::give, &answers);
    const Objects objects(parser, "<a><b/><c/></a>");
    QCOMPARE(objects.size(), 2);
    QCOMPARE(objects.at(0)->parent(), nullptr);
    QCOMPARE(objects.at(1)->parent(), nullptr);
}

void tst_HRXmlParser::read_obeysFilter_data()
{
    QTest::addColumn<int>("answerForA");
    QTest::addColumn<int>("answerForB");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QString>("asked");

    QTest::newRow("0 asks for children") << 1 << 0 << "a'!'{b'?'{c{d}} e}"
                                         << "a b c d e";
    QTest::newRow("1 asks for children") << 1 << 1 << "a'!'{b'?'{c{d}} e}"
                                         << "a b c d e";
    QTest::newRow("2 keeps all below") << 1 << 2 << "a'!'{b'?'{c{d}} e}"
                                       << "a b e";
    QTest::newRow("2 at the top asks once") << 2 << 8 << "a'!'{b'?'{c{d}} e}"
                                            << "a";
    QTest::newRow("4 drops one element") << 1 << 4 << "a'!'{c{d} e}"
                                         << "a b c d e";
    QTest::newRow("4 with 1 drops one element") << 1 << 5 << "a'!'{c{d} e}"
                                                << "a b c d e";
    QTest::newRow("4 with 2 asks no more") << 1 << 6 << "a'!'{c{d} e}"
                                           << "a b e";
    QTest::newRow("8 drops what is below") << 1 << 8 << "a'!'{b'?' e}"
                                           << "a b e";
    QTest::newRow("8 with 2 drops what is below") << 1 << 10 << "a'!'{b'?' e}"
                                                  << "a b e";
    QTest::newRow("8 with 4 drops the tree") << 1 << 12 << "a'!'{e}"
                                             << "a b e";
    QTest::newRow("all bits drop the tree") << 1 << 15 << "a'!'{e}"
                                            << "a b e";
    QTest::newRow("unknown bits count as none") << 16 << 32 << "a'!'{b'?'{c{d}} e}"
                                                << "a b c d e";
    QTest::newRow("4 at the top frees children") << 4 << 1 << "b'?'{c{d}} e"
                                                 << "a b c d e";
    QTest::newRow("4 at two levels frees grandchildren") << 4 << 4 << "c{d} e"
                                                         << "a b c d e";
    QTest::newRow("8 with 4 at the top leaves nothing") << 12 << 1 << ""
                                                        << "a";
    QTest::newRow("8 at the top leaves the top") << 8 << 1 << "a'!'"
                                                 << "a";
}

void tst_HRXmlParser::read_obeysFilter()
{
    QFETCH(int, answerForA);
    QFETCH(int, answerForB);
    Answers answers{ { { "a", answerForA }, { "b", answerForB } }, {} };
    HRXmlParser parser(Answers::give, &answers);
    const Objects objects(parser, "<a>!<b>?<c><d/></c></b><e/></a>");
    QTEST(outline(objects), "result");
    QTEST(answers.asked.join(' '), "asked");
}

void tst_HRXmlParser::filter_seesNamesAndAttributes()
{
    Answers answers{ {}, {} };
    HRXmlParser parser(Answers::give, &answers);
    const Objects objects(parser, "<x:a xmlns:x='urn:a' b='1' x:c='2'/>");
    QCOMPARE(answers.asked, (QStringList{ "x:a", "b=1", "x:c=2" }));
}

void tst_HRXmlParser::readText_endsBehindTag_inFilter()
{
    struct Reading
    {
        static int note(const QString &, const QXmlAttributes &, void *reading)
        {
            auto *self = static_cast<Reading *>(reading);
            self->texts.append(self->parser.readText().toString());
            return 0;
        }
        QStringList texts;
        HRXmlParser parser{ &Reading::note, this };
    } reading;
    QVERIFY(reading.parser.readText().isEmpty());

    qDeleteAll(reading.parser.read(QByteArray("<a>\n<b c='>'>\xc3\xb6</b><d/></a>")));

    const QString whole = QString::fromUtf8("<a>\n<b c='>'>\xc3\xb6</b><d/></a>");
    QCOMPARE(reading.texts, QStringList({ "<a>", "<a>\n<b c='>'>", whole.chopped(5) }));
    QCOMPARE(reading.parser.readText().toString(), whole);
}

void tst_HRXmlParser::readText_endsAtError()
{
    HRXmlParser parser;

    parser.read(QByteArray("<a><b></c>\n</a>"));

    QCOMPARE(parser.readText().toString(), QString("<a><b></c>"));
}

void tst_HRXmlParser::read_choosesClassByLocalName()
{
    HRXmlParser parser;
    parser.registerElement("item", &Note::staticMetaObject);
    const Objects objects(
        parser, "<list xmlns:x='urn:a'><x:item/><x:list xmlns='urn:b'><list/></x:list></list>");
    const QObjectList children = objects.element()->children();

    const auto *note = qobject_cast<Note *>(children.first());
    QVERIFY(note);
    QCOMPARE(note->tagName, QString("x:item"));
    const auto *list = qobject_cast<HRXmlElement *>(children.last());
    QCOMPARE(list->getTagName(), QString("x:list"));
    QCOMPARE(list->getTagNameSpace(), QString("urn:a"));
    QCOMPARE(list->childElement("list")->getTagNameSpace(), QString("urn:b"));
    QCOMPARE(objects.element()->getTagNameSpace(), QString());
}

void tst_HRXmlParser::read_usesDefault_whenRegisteredClassIsNull()
{
    HRXmlParser parser;
    parser.registerElement("a", nullptr);
    const Objects objects(parser, "<a/>");
    QVERIFY(objects.element());
}

void tst_HRXmlParser::read_writesProperties_whenClassTakesNoAttributes()
{
    HRXmlParser parser;
    parser.setDefaultElement(&Note::staticMetaObject);
    const Objects objects(
        parser, "<note xmlns:x='urn:a' title='T' x:rank='7'>some <![CDATA[text]]></note>");
    const auto *note = qobject_cast<Note *>(objects.at(0));
    QVERIFY(note);
    QCOMPARE(note->title, QString("T"));
    QCOMPARE(note->rank, 7);
    QCOMPARE(note->tagName, QString("note"));
    QCOMPARE(note->text, QString("some text"));
}

void tst_HRXmlParser::read_stops_whenPropertyIsMissing()
{
    MessageGuard messages;
    HRXmlParser parser;
    parser.registerElement("note", &Note::staticMetaObject);
    const Objects objects(parser, "<a><b/><note title='T' colour='red'/><c/></a>");
    QCOMPARE(outline(objects), QString("a{b}"));
    QVERIFY(messages.take(
        "No Property named colour on " + QString(Note::staticMetaObject.className())));
    QVERIFY(messages.take("Fatal error at 1,36 : error triggered by consumer"));
}

void tst_HRXmlParser::read_goesOn_whenPropertyRejectsValue()
{
    MessageGuard messages;
    HRXmlParser parser;
    parser.registerElement("note", &Note::staticMetaObject);
    const Objects objects(parser, "<note fixed='1' rank='many' title='T'/>");
    const auto *note = qobject_cast<Note *>(objects.at(0));
    QVERIFY(note);
    QCOMPARE(note->title, QString("T"));
    const QString name = Note::staticMetaObject.className();
    QVERIFY(messages.take("Could not write \"1\" to property fixed of " + name));
    QVERIFY(messages.take("Could not write \"many\" to property rank of " + name));
}

void tst_HRXmlParser::read_stops_whenNoObjectCanBeMade()
{
    MessageGuard messages;
    HRXmlParser parser;
    parser.registerElement("b", &QTimer::staticMetaObject); // it has no invokable constructor
    const Objects objects(parser, "<a><x:b xmlns:x='urn:a' c='d'/><e/></a>");
    QCOMPARE(outline(objects), QString("a"));
    QVERIFY(messages.take("Could not find object for element: b"));
    QCOMPARE(messages.takeMessages().size(), 1);
}

void tst_HRXmlParser::read_stops_whenThereIsNoClass()
{
    MessageGuard messages;
    HRXmlParser parser;
    parser.setDefaultElement(nullptr);
    const Objects objects(parser, "<a/>");
    QCOMPARE(objects.size(), 0);
    QVERIFY(messages.take("Could not find object for element: a"));
    QCOMPARE(messages.takeMessages().size(), 1);
}

void tst_HRXmlParser::messages_areOneLine_data()
{
    addMisleadingNames();
}

// Only the value of an attribute may have such characters, as references.
void tst_HRXmlParser::messages_areOneLine()
{
    QFETCH(QString, name);
    QFETCH(QString, told);
    MessageGuard messages;
    HRXmlParser parser;
    parser.registerElement("note", &Note::staticMetaObject);
    QString references;
    for (const QChar c : qAsConst(name))
        references += QString("&#%1;").arg(c.unicode());
    const Objects objects(parser, QString("<note title='%1' rank='%1'/>").arg(references));
    const auto *note = qobject_cast<Note *>(objects.at(0));
    QVERIFY(note);
    QCOMPARE(note->title, name);
    QCOMPARE(messages.takeMessages(),
        QStringList{ QString("Could not write \"%1\" to property rank of %2")
                         .arg(told, Note::staticMetaObject.className()) });
}

void tst_HRXmlParser::read_dropsText_whenClassTakesNone()
{
    HRXmlParser parser;
    parser.registerElement("b", &Plain::staticMetaObject);
    const Objects objects(parser, "<a>1<b>2<c>3</c></b></a>");
    QCOMPARE(outline(objects), QString("a'1'{{c'3'}}"));
}

void tst_HRXmlParser::read_trimsTagName()
{
    HRXmlParser parser;
    const Objects objects(parser, "<a xmlns=' urn:a '/>");
    QCOMPARE(objects.element()->getTagNameSpace(), QString("urn:a"));
}

void tst_HRXmlParser::read_keepsAttributes_whenElementTakesThem()
{
    HRXmlParser parser;
    const Objects objects(parser, "<a xmlns:x='urn:a' b='1' tagName='2' x:a='&lt;3'/>");
    QCOMPARE(objects.element()->getTagName(), QString("a"));
    QCOMPARE(objects.element()->attributeNames(), (QStringList{ "b", "tagName", "x:a" }));
    QCOMPARE(objects.element()->attribute("x:a"), QString("<3"));
}

void tst_HRXmlParser::read_appendsTextInOrder()
{
    HRXmlParser parser;
    const Objects objects(
        parser, "<a> 1&amp;2 <![CDATA[ <3> ]]><!-- no -->&#52;<b>not\nthis</b>\n  5\t</a>");
    QCOMPARE(objects.element()->content(), QString(" 1&2  <3> 4\n  5\t"));
}

void tst_HRXmlParser::ignorableWhitespace_isText()
{
    HRXmlParser parser(tellWhitespace, &parser);
    const Objects objects(parser, "<a>1<b/>2</a>");
    QCOMPARE(outline(objects), QString("a'1 \n2'{b}"));
}

void tst_HRXmlParser::read_survives_whenItsFilterDeletesTheTree()
{
    MessageGuard messages;
    HRXmlParser parser(deleteTree, &lastMade);
    parser.setDefaultElement(&Known::staticMetaObject);
    const Objects objects(parser, "<a><c></a>"); // what stays open is the parser's
    QCOMPARE(objects.size(), 0);
    QVERIFY(lastMade);
    QCOMPARE(lastMade->parent(), nullptr);
    QCOMPARE(messages.takeMessages().size(), 1);
}

QTEST_GUILESS_MAIN(tst_HRXmlParser)
#include "tst_HRXmlParser.moc"
