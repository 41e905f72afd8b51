// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "ui/reader/hintReading_p.h"
#include "ui/reader/textCut_p.h"

#include <QtTest>

using namespace Hintreels;

namespace {

const QString more(ellipsis);

QString asItIs(const QString &text)
{
    return text;
}

struct Hint
{
    void add(const QString &tag, const QString &text, const QString &attribute = {},
        const QString &value = {})
    {
        auto *child = new HRXmlElement(&element);
        child->setTagName(tag);
        child->setContent(text);
        if (!attribute.isEmpty())
            child->setAttribute(attribute, value);
    }

    QVariantMap read() const { return readHint(element, asItIs); }
    QVariantList blocks() const { return read().value("blocks").toList(); }
    QString textOf(int block) const { return blocks().value(block).toMap()["text"].toString(); }
    int characters() const
    {
        int sum = 0;
        for (const QVariant &block : blocks())
            sum += block.toMap()["text"].toString().size();
        return sum;
    }

    HRXmlElement element;
};

QString letters(int count)
{
    return QString(count, 'x');
}

} // namespace

class tst_hintReading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dedent_takesTheIndentationAway_data();
    void dedent_takesTheIndentationAway();
    void readHint_keepsWhatIsNotTooLong();
    void readHint_cutsWhatIsTooLong();
    void readHint_cutsWhatTheReaderSees_notTheSource();
    void readHint_says_eachTextOnce();
    void readHint_cutsBlocks_data();
    void readHint_cutsBlocks();
    void readHint_cutsLines();
    void readHint_cutsListsInALine_likeLines_data();
    void readHint_cutsListsInALine_likeLines();
    void readHint_cutsNoMarks_whichOpenNoList();
    void readHint_showsNoMoreThanTheHintHolds();
    void readHint_showsNoMoreThanTheHintHolds_ofKeys();
    void readHint_showsNoMoreBlocks();
    void readHint_showsNoMoreLinks();
    void readHint_leavesLinksAlone_whereTheyAreFew();
    void readHint_addsNoEllipsis_forWhatShowsNothing();
};

void tst_hintReading::dedent_takesTheIndentationAway_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("blank lines only") << "\n   \n\t\n"
                                      << "";
    QTest::newRow("one line") << "text"
                              << "text";
    QTest::newRow("indented block") << "\n    one\n    two\n  "
                                    << "one\ntwo";
    QTest::newRow("blank line inside") << "\n    one\n\n    two\n"
                                       << "one\n\ntwo";
    QTest::newRow("line of blanks inside") << "\n    one\n \n    two\n"
                                           << "one\n\ntwo";
    QTest::newRow("nested list") << "\n    - one\n      - inner\n    - two"
                                 << "- one\n  - inner\n- two";
    QTest::newRow("code block") << "\n    Text\n\n        code\n          more"
                                << "Text\n\n    code\n      more";
    QTest::newRow("tabs") << "\n\t\tone\n\t\t\ttwo"
                          << "one\n\ttwo";
    QTest::newRow("tabs and blanks share nothing") << "\n\tone\n  two"
                                                   << "\tone\n  two";
    QTest::newRow("first line after the tag") << "one\n    two\n    three"
                                              << "one\ntwo\nthree";
    QTest::newRow("first line after the tag, list") << " one\n  - two\n    - three"
                                                    << "one\n- two\n  - three";
    QTest::newRow("carriage returns") << "\r\n  one\r\n  two\r\n"
                                      << "one\r\ntwo\r";
    QTest::newRow("trailing blanks make line breaks") << "\n  one  \n  two"
                                                      << "one  \ntwo";
}

void tst_hintReading::dedent_takesTheIndentationAway()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);

    QCOMPARE(dedent(text), expected);
}

void tst_hintReading::readHint_keepsWhatIsNotTooLong()
{
    Hint hint;
    hint.element.setAttribute("title", letters(300));
    hint.add("summary", letters(1000));
    hint.add("text", letters(10'000));

    QCOMPARE(hint.read()["title"].toString(), letters(300));
    QCOMPARE(hint.read()["summary"].toString(), letters(1000));
    QCOMPARE(hint.textOf(0), letters(10'000));
}

void tst_hintReading::readHint_cutsWhatIsTooLong()
{
    Hint hint;
    hint.element.setAttribute("title", letters(1'000'000));
    hint.element.setAttribute("shortcut", letters(1'000'000));
    hint.add("summary", letters(1'000'000));

    QCOMPARE(hint.read()["title"].toString(), letters(299) + more);
    QCOMPARE(hint.read()["shortcut"].toString(), letters(999) + more);
    QCOMPARE(hint.read()["summary"].toString(), letters(999) + more);
}

void tst_hintReading::readHint_cutsWhatTheReaderSees_notTheSource()
{
    Hint hint;
    hint.element.setAttribute("title", letters(400));
    hint.add("text", "short");

    const QVariantMap read = readHint(hint.element,
        [](const QString &text) { return text == "short" ? letters(20'000) : "translated"; });

    QCOMPARE(read["title"].toString(), QString("translated"));
    QCOMPARE(read["blocks"].toList()[0].toMap()["text"].toString(), letters(9'999) + more);
}

void tst_hintReading::readHint_says_eachTextOnce()
{
    Hint hint;
    hint.element.setAttribute("title", "Title");
    hint.element.setAttribute("shortcut", "F1");
    hint.add("summary", "Summary");
    hint.add("text", "Text");
    hint.add("keys", "Keys", "press", "Drag");
    hint.add("picture", "", "alt", "Alt");
    hint.add("link", "", "to", "there");
    hint.add("link", "Label", "to", "here");
    hint.add("picture", "Caption", "source", "a.png");
    QStringList said;

    const QVariantMap read = readHint(hint.element, [&said](const QString &text) {
        said.append(text);
        return text.toUpper();
    });

    said.sort();
    QCOMPARE(said,
        (QStringList{ "Caption", "Drag", "Keys", "Label", "Summary", "Text", "Title", "there" }));
    const QVariantMap link = read["blocks"].toList()[2].toMap();
    QCOMPARE(link["text"].toString(), QString("THERE"));
    QCOMPARE(link["to"].toString(), QString("there"));
}

void tst_hintReading::readHint_cutsBlocks_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("needed");

    for (const char *tag : { "text", "note" })
        QTest::newRow(tag) << tag << "";
    QTest::newRow("keys") << "keys"
                          << "press";
    QTest::newRow("picture") << "picture"
                             << "source";
    QTest::newRow("video") << "video"
                           << "source";
    QTest::newRow("link") << "link"
                          << "to";
}

void tst_hintReading::readHint_cutsBlocks()
{
    QFETCH(QString, tag);
    QFETCH(QString, needed);
    Hint hint;
    hint.add(tag, letters(1'000'000), needed, "F1");

    QCOMPARE(hint.blocks().size(), 1);
    QCOMPARE(hint.textOf(0), letters(9'999) + more);
}

void tst_hintReading::readHint_cutsLines()
{
    Hint hint;
    hint.add("text", QString("a\n").repeated(300) + "b");
    hint.add("note", QString("- a\n").repeated(299) + "- b");

    QCOMPARE(hint.textOf(0), QString("a\n").repeated(300) + more);
    QCOMPARE(hint.textOf(1), QString("- a\n").repeated(299) + "- b");
}

void tst_hintReading::readHint_cutsListsInALine_likeLines_data()
{
    QTest::addColumn<QString>("marker");

    for (const char *marker : { "- ", "* ", "+ ", "1. ", "23) ", "-   ", "- > ", "-\t" })
        QTest::newRow(marker) << marker;
}

void tst_hintReading::readHint_cutsListsInALine_likeLines()
{
    QFETCH(QString, marker);
    Hint hint;
    hint.add("text", marker.repeated(300) + "a");
    hint.add("text", marker.repeated(301) + "a");

    QCOMPARE(hint.textOf(0), marker.repeated(300) + "a");
    QCOMPARE(hint.textOf(1), marker.repeated(300) + more);
}

void tst_hintReading::readHint_cutsNoMarks_whichOpenNoList()
{
    const QString marks = QString("a - b, 2 * 3; ").repeated(400);
    Hint hint;
    hint.add("text", marks + "end");

    QCOMPARE(hint.textOf(0), marks + "end");
}

void tst_hintReading::readHint_showsNoMoreThanTheHintHolds()
{
    Hint hint;
    for (int i = 0; i < 10; ++i)
        hint.add(i % 2 ? "text" : "note", letters(9'000));

    QCOMPARE(hint.blocks().size(), 5);
    QCOMPARE(hint.textOf(2), letters(9'000));
    QCOMPARE(hint.textOf(3), letters(2'999) + more);
    QCOMPARE(hint.textOf(4), more);
    QCOMPARE(hint.characters(), 30'001);
}

void tst_hintReading::readHint_showsNoMoreThanTheHintHolds_ofKeys()
{
    Hint hint;
    for (int i = 0; i < 100; ++i)
        hint.add("keys", "", "press", QString("A+B+C+D, ").repeated(24));

    // 96 caps in each, and no room for more than a thousand.
    QCOMPARE(hint.blocks().size(), 11);
    QCOMPARE(hint.textOf(10), more);
}

void tst_hintReading::readHint_showsNoMoreBlocks()
{
    Hint hint;
    for (int i = 0; i < 200; ++i)
        hint.add("text", QString::number(i));
    QCOMPARE(hint.blocks().size(), 200);
    QCOMPARE(hint.textOf(199), QString("199"));

    hint.add("text", "one more");

    QCOMPARE(hint.blocks().size(), 200);
    QCOMPARE(hint.textOf(198), QString("198"));
    QCOMPARE(hint.textOf(199), more);
}

void tst_hintReading::readHint_addsNoEllipsis_forWhatShowsNothing()
{
    Hint hint;
    for (int i = 0; i < 200; ++i)
        hint.add("text", "text");
    hint.add("unknown", "text");
    hint.add("text", "  ");

    QCOMPARE(hint.textOf(199), QString("text"));
}

void tst_hintReading::readHint_showsNoMoreLinks()
{
    Hint hint;
    hint.add("text", QString("[a](b) ").repeated(60));
    hint.add("text", "no links, but what looks like them: ::::]]]]@@@@");
    hint.add("link", "Label", "to", "there");
    hint.add("note", QString("[a](b) ").repeated(60));
    hint.add("link", "Label", "to", "there");
    const auto block = [&hint](int number) { return hint.blocks().value(number).toMap(); };

    QCOMPARE(block(0)["links"].toInt(), 100);
    QCOMPARE(block(1)["links"].toInt(), 40);
    QCOMPARE(block(2)["text"].toString(), QString("Label"));
    QCOMPARE(block(3)["links"].toInt(), 39);
    QCOMPARE(block(4), (QVariantMap{ { "block", "text" }, { "text", more } }));
}

void tst_hintReading::readHint_leavesLinksAlone_whereTheyAreFew()
{
    Hint hint;
    hint.add("text", QString("[a](b) ").repeated(100));

    QVERIFY(!hint.blocks().value(0).toMap().contains("links"));
}

QTEST_MAIN(tst_hintReading)
#include "tst_hintReading.moc"
