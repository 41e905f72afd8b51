// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/HRMarkdownGate_p.h"

#include "ui/reader/textCut_p.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QtTest>

using namespace Hintreels;

namespace {

// Qt 5 alone ends a block of code with an empty line.
const QString emptyLineAfterCode = QT_VERSION_MAJOR >= 6 ? "" : "\n";

/// Lists what it is asked to load.
class Document : public QTextDocument
{
public:
    QStringList loaded;

protected:
    QVariant loadResource(int type, const QUrl &name) override
    {
        Q_UNUSED(type)
        loaded.append(name.toString());
        return {};
    }
};

QString linksOf(int count)
{
    return QString("[a](b) ").repeated(count);
}

/// Knows all pictures of a package that has one for every name, and lists what it is asked for.
struct Gate
{
    explicit Gate(const QString &markdown, int mostLinks = 100)
    {
        const HRMarkdownGate gate(
            [this](const QString &path) {
                asked.append(path);
                return path.startsWith("no") ? HRTextPicture()
                                             : HRTextPicture{ QUrl(path), { 20, 10 } };
            },
            mostLinks);
        QTextCursor whole(&document);
        whole.beginEditBlock();
        gate.fill(&document, markdown);
        whole.endEditBlock();
        document.setTextWidth(300);
        document.size();
    }

    QString text() const { return document.toPlainText(); }
    QTextCharFormat formatOf(const QString &text) const { return document.find(text).charFormat(); }

    QStringList asked;
    Document document;
};

} // namespace

class tst_HRMarkdownGate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fill_takesHtmlOut_data();
    void fill_takesHtmlOut();
    void fill_keepsTheKindOfText_whereHtmlWasAbove();
    void fill_keepsBracketsInAddresses();
    void fill_loadsNothing_data();
    void fill_loadsNothing();
    void fill_asksForPicturesOfThePackageOnly_data();
    void fill_asksForPicturesOfThePackageOnly();
    void fill_makesAPlace_forEachPicture();
    void fill_showsTheAlternativeText_whereThereIsNoPicture();
    void fill_showsTheAlternativeText_whereNobodyFindsPictures();
    void fill_endsBeforeOneLinkMore_data();
    void fill_endsBeforeOneLinkMore();
    void fill_endsBeforeTooManyStyles();
    void countLinks_countsLinksAndPictures();
};

void tst_HRMarkdownGate::fill_takesHtmlOut_data()
{
    QTest::addColumn<QString>("markdown");
    QTest::addColumn<QString>("text");

    QTest::newRow("none") << "a < b > c, 1<2"
                          << "a < b > c, 1<2";
    QTest::newRow("tags in a line") << "a <b>bold</b> word"
                                    << "a bold word";
    QTest::newRow("tag with attributes") << "a <font color='red' size=7 x>b"
                                         << "a b";
    QTest::newRow("tag over two lines") << "a <font\ncolor=\"a>b\">b</font>"
                                        << "a b";
    QTest::newRow("empty tag") << "a<br/>b<hr />c"
                               << "abc";
    QTest::newRow("tags alone") << "<div>\n\ntext\n\n</div>"
                                << "text";
    QTest::newRow("block of HTML") << "<table><tr><td>cell</td></tr></table>"
                                   << "cell";
    QTest::newRow("comment") << "a <!-- not > this -->b"
                             << "a b";
    QTest::newRow("comment over lines") << "<!-- one\ntwo -->\n\ntext"
                                        << "text";
    QTest::newRow("instruction") << "a<?xml version=\"1.0\"?>b"
                                 << "ab";
    QTest::newRow("declaration") << "a<!DOCTYPE html>b"
                                 << "ab";
    QTest::newRow("character data") << "a<![CDATA[x]]>b"
                                    << "ab";
    QTest::newRow("markdown between tags") << "<b>*a*</b>"
                                           << "a";
    QTest::newRow("tags in a list") << "- <i>one</i>\n- two"
                                    << "one\ntwo";
    QTest::newRow("code") << "`<b>` and `\\<b> &lt;`"
                          << "<b> and \\<b> &lt;";
    QTest::newRow("block of code") << "```\n<b>\n\\<i>\n```"
                                   << "<b>\n\\<i>" + emptyLineAfterCode;
    QTest::newRow("escaped") << "\\<b> and &lt;i> and \\&lt;u>"
                             << "<b> and <i> and &lt;u>";
    QTest::newRow("backslash before a tag") << "a\\\\<b>c"
                                            << "a\\c";
    QTest::newRow("no tag") << "<3 <-- <= <é> <b" << QString::fromUtf8("<3 <-- <= <é> <b");
    QTest::newRow("address") << "<https://example.org>"
                             << "https://example.org";
    QTest::newRow("nothing but HTML") << "<!-- a -->"
                                      << "";
    QTest::newRow("table stays text") << "|a|b|\n|-|-|\n|c|d|"
                                      << "|a|b| |-|-| |c|d|";
}

void tst_HRMarkdownGate::fill_takesHtmlOut()
{
    QFETCH(QString, markdown);
    QFETCH(QString, text);

    QCOMPARE(Gate(markdown).text(), text);
}

void tst_HRMarkdownGate::fill_keepsTheKindOfText_whereHtmlWasAbove()
{
    const Gate gate("<!-- a -->\n\n- one\n- two\n\n<p>\n\n# three");

    QCOMPARE(gate.text(), QString("one\ntwo\nthree"));
    QVERIFY(gate.document.firstBlock().textList());
    QCOMPARE(gate.document.lastBlock().blockFormat().headingLevel(), 1);
}

void tst_HRMarkdownGate::fill_keepsBracketsInAddresses()
{
    const Gate gate("[a](b\\<c) &lt; ![](x)");

    QCOMPARE(gate.formatOf("a").anchorHref(), QString("b<c"));
}

void tst_HRMarkdownGate::fill_loadsNothing_data()
{
    QTest::addColumn<QString>("markdown");

    QTest::newRow("picture") << "![a](a.png)";
    QTest::newRow("missing picture") << "![a](no.png)";
    QTest::newRow("picture of another host") << "![a](http://localhost/a.png)";
    QTest::newRow("file") << "![a](file:///dev/zero)";
    QTest::newRow("data") << "![a](data:image/png;base64,AAAA)";
    QTest::newRow("picture by reference") << "![a][b]\n\n[b]: /dev/zero";
    QTest::newRow("picture in HTML") << "a <img src='a.png'> <img src=b.png width=3>";
    QTest::newRow("styles in HTML") << "<link rel=stylesheet type='text/css' href='a.css'>\n\na";
    QTest::newRow("background in HTML") << "<body background='a.png'>a</body>";
    QTest::newRow("background in a style") << "<p style=\"background-image:url('a.png')\">a</p>";
    QTest::newRow("list picture in a style")
        << "<style>@import url(a.css); li { list-style-image: url(b.png) }</style>\n\n- a";
}

void tst_HRMarkdownGate::fill_loadsNothing()
{
    QFETCH(QString, markdown);

    QCOMPARE(Gate(markdown).document.loaded, QStringList());
}

void tst_HRMarkdownGate::fill_asksForPicturesOfThePackageOnly_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("asked");

    QTest::newRow("name") << "pen.png"
                          << "pen.png";
    QTest::newRow("in a folder") << "a/b.png"
                                 << "a/b.png";
    QTest::newRow("with blanks") << "<a b.png>"
                                 << "a b.png";
    QTest::newRow("with blanks as an address") << "a%20b.png"
                                               << "a b.png";
    QTest::newRow("two dots in a name") << "a..b/..c.png"
                                        << "a..b/..c.png";
    QTest::newRow("with a bracket") << "a\\<b.png"
                                    << "a<b.png";
    QTest::newRow("absolute") << "/etc/passwd"
                              << "";
    QTest::newRow("absolute, as an address") << "%2fetc%2fpasswd"
                                             << "";
    QTest::newRow("file") << "file:///etc/passwd"
                          << "";
    QTest::newRow("relative file") << "file:a.png"
                                   << "";
    QTest::newRow("resource of the host") << ":/a.png"
                                          << "";
    QTest::newRow("address of such a resource") << "qrc:/a.png"
                                                << "";
    QTest::newRow("another host") << "http://localhost/a.png"
                                  << "";
    QTest::newRow("another host, in the scheme of here") << "//localhost/a.png"
                                                         << "";
    QTest::newRow("data") << "data:image/png;base64,AAAA"
                          << "";
    QTest::newRow("folder above") << "../a.png"
                                  << "";
    QTest::newRow("folder above a folder") << "a/../../b.png"
                                           << "";
    QTest::newRow("folder above, as an address") << "%2e%2e/a.png"
                                                 << "";
    QTest::newRow("folder above alone") << ".."
                                        << "";
}

void tst_HRMarkdownGate::fill_asksForPicturesOfThePackageOnly()
{
    QFETCH(QString, target);
    QFETCH(QString, asked);

    const Gate gate("![a](" + target + ")");

    QCOMPARE(gate.asked.join('|'), asked);
    QCOMPARE(
        gate.text(), asked.isEmpty() ? QString("a") : QString(QChar::ObjectReplacementCharacter));
    QCOMPARE(gate.document.loaded, QStringList());
}

void tst_HRMarkdownGate::fill_makesAPlace_forEachPicture()
{
    const Gate gate("One ![two *three*](a.png) ![four](b.png)\n\n- ![five](c.png)");

    QCOMPARE(gate.asked, (QStringList{ "c.png", "b.png", "a.png" }));
    const QTextImageFormat place
        = gate.formatOf(QString(QChar::ObjectReplacementCharacter)).toImageFormat();
    QCOMPARE(place.width(), 20.0);
    QCOMPARE(place.height(), 10.0);
    QCOMPARE(place.stringProperty(QTextFormat::ImageAltText), QString("two three"));
    QCOMPARE(HRMarkdownGate::pictureIn(place), QUrl("a.png"));
    QCOMPARE(gate.text().count(QChar::ObjectReplacementCharacter), 3);
    QVERIFY(gate.document.size().height() > 0);
    QCOMPARE(gate.document.loaded, QStringList());
}

void tst_HRMarkdownGate::fill_showsTheAlternativeText_whereThereIsNoPicture()
{
    const Gate gate("**One ![two *three*](no.png) four** ![](a.png)");

    QCOMPARE(gate.text(), QString("One two three four "));
    QVERIFY(!gate.formatOf("two").isImageFormat());
}

void tst_HRMarkdownGate::fill_showsTheAlternativeText_whereNobodyFindsPictures()
{
    QTextDocument document;
    HRMarkdownGate(nullptr, 100).fill(&document, "One ![two](a.png) three");
    QCOMPARE(document.toPlainText(), QString("One two three"));
}

void tst_HRMarkdownGate::fill_endsBeforeOneLinkMore_data()
{
    QTest::addColumn<QString>("markdown");
    QTest::addColumn<int>("mostLinks");
    QTest::addColumn<QString>("text");

    const QString more(ellipsis);
    QTest::newRow("as many as may be") << "[a](1) b [c](2) d" << 2 << "a b c d";
    QTest::newRow("one more") << "[a](1) b [c](2) d\n\ne [f](3) g\n\n- h" << 2
                              << "a b c d\ne " + more;
    QTest::newRow("none") << "a [b](1) c" << 0 << "a " + more;
    QTest::newRow("addresses") << "a https://b.org c@d.org e" << 1 << "a https://b.org " + more;
    QTest::newRow("pictures") << "[a](1) ![](b) ![c](c.png) ![d](d.png)" << 2
                              << "a  " + QString(QChar::ObjectReplacementCharacter) + " " + more;
}

void tst_HRMarkdownGate::fill_endsBeforeOneLinkMore()
{
    QFETCH(QString, markdown);
    QFETCH(int, mostLinks);
    QFETCH(QString, text);

    QCOMPARE(
        Gate(markdown, mostLinks).document.toRawText().replace(QChar::ParagraphSeparator, '\n'),
        text);
}

void tst_HRMarkdownGate::fill_endsBeforeTooManyStyles()
{
    // A run in italics and a blank each time.
    QCOMPARE(Gate(QString("*a* ").repeated(250)).text(), QString("a ").repeated(249) + "a");
    QCOMPARE(Gate(QString("*a* ").repeated(251)).text(), QString("a ").repeated(250) + ellipsis);
}

void tst_HRMarkdownGate::countLinks_countsLinksAndPictures()
{
    QCOMPARE(countLinks(""), 0);
    QCOMPARE(countLinks("[a](b) https://c.org `[d](e)`\n\n- ![f](g) <h@i.org>"), 4);
    QCOMPARE(countLinks(linksOf(200)), 200);
}

QTEST_MAIN(tst_HRMarkdownGate)
#include "tst_HRMarkdownGate.moc"
