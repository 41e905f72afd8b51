// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/textStyle_p.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>
#include <QtTest>

using namespace Hintreels;

namespace {

const HRTextLook look{ QColor("#0000ff"), QColor("#dddddd"), 8 };

struct Styled
{
    explicit Styled(const QString &markdown) { setMarkdown(document, markdown, look); }

    QTextBlock block(int number) const { return document.findBlockByNumber(number); }

    QTextCharFormat formatOf(const QString &text) const { return document.find(text).charFormat(); }

    QTextDocument document;
};

} // namespace

class tst_textStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setMarkdown_spacesParagraphsOnlyBetween();
    void setMarkdown_setsListItemsCloser();
    void setMarkdown_keepsNestedLists();
    void setMarkdown_indentsDeepLists_noFurther();
    void setMarkdown_indentsCode_asOneBlock();
    void setMarkdown_leavesNoEmptyParagraph_whenCodeEndsTheText();
    void setMarkdown_indentsQuotations();
    void setMarkdown_setsHeadingsInTheSizeOfTheText();
    void setMarkdown_usesOneStrongWeight();
    void setMarkdown_colorsLinksAndInlineCode();
    void setMarkdown_keepsTheLook_whenAppliedAgain();
    void setMarkdown_acceptsAnEmptyDocument();
    void linksIn_findsLinksInReadingOrder();
    void picturesIn_findsPicturesInReadingOrder();
    void setMarkdown_growsLines_unlessAPictureStandsInThem();
    void setMarkdown_keepsEmptyLinesOfCode();
};

void tst_textStyle::setMarkdown_spacesParagraphsOnlyBetween()
{
    const Styled styled("One\n\nTwo\n\nThree");

    QCOMPARE(styled.document.blockCount(), 3);
    QCOMPARE(styled.block(0).blockFormat().topMargin(), 0.0);
    QCOMPARE(styled.block(0).blockFormat().bottomMargin(), 8.0);
    QCOMPARE(styled.block(1).blockFormat().bottomMargin(), 8.0);
    QCOMPARE(styled.block(2).blockFormat().bottomMargin(), 0.0);
}

void tst_textStyle::setMarkdown_setsListItemsCloser()
{
    const Styled styled("- One\n- Two\n\nAfter");

    QCOMPARE(styled.block(0).blockFormat().bottomMargin(), 4.0);
    QCOMPARE(styled.block(1).blockFormat().bottomMargin(), 8.0);
}

void tst_textStyle::setMarkdown_keepsNestedLists()
{
    const Styled styled("- One\n  - Inner\n- Two");

    QCOMPARE(styled.block(1).textList()->format().indent(), 2);
    QCOMPARE(styled.block(2).textList(), styled.block(0).textList());
}

void tst_textStyle::setMarkdown_indentsDeepLists_noFurther()
{
    const Styled styled(QString("- ").repeated(30) + "deep");

    QSet<int> indents;
    for (QTextBlock block = styled.block(0); block.isValid(); block = block.next())
        indents += block.textList() ? block.textList()->format().indent() : 0;
    indents -= 0; // what is in no list

    QCOMPARE(indents, (QSet<int>{ 1, 2, 3, 4, 5, 6, 7, 8 }));
    QCOMPARE(styled.document.lastBlock().textList()->format().indent(), 8);
    QCOMPARE(styled.document.lastBlock().text(), QString("deep"));
}

void tst_textStyle::setMarkdown_indentsCode_asOneBlock()
{
    const Styled styled("Before\n\n```\nfirst\nsecond\n```\n\nAfter");

    QCOMPARE(styled.block(1).text(), QString("first"));
    QCOMPARE(styled.block(1).blockFormat().leftMargin(), 20.0);
    QCOMPARE(styled.block(0).blockFormat().bottomMargin(), 8.0);
    QCOMPARE(styled.block(1).blockFormat().bottomMargin(), 0.0);
    QCOMPARE(styled.block(2).blockFormat().bottomMargin(), 8.0);
    QVERIFY(!styled.formatOf("first").hasProperty(QTextFormat::BackgroundBrush));
}

void tst_textStyle::setMarkdown_leavesNoEmptyParagraph_whenCodeEndsTheText()
{
    const Styled styled("Before\n\n```\nlast\n```\n");

    QCOMPARE(styled.document.lastBlock().text(), QString("last"));
}

void tst_textStyle::setMarkdown_indentsQuotations()
{
    const Styled styled("> Quoted");

    QCOMPARE(styled.block(0).blockFormat().leftMargin(), 20.0);
    QCOMPARE(styled.block(0).blockFormat().rightMargin(), 0.0);
    QCOMPARE(Styled("> > Quoted").block(0).blockFormat().leftMargin(), 40.0);
    QCOMPARE(Styled("Plain").block(0).blockFormat().leftMargin(), 0.0);
}

void tst_textStyle::setMarkdown_setsHeadingsInTheSizeOfTheText()
{
    const Styled styled("# Heading\n\nText");

    QVERIFY(!styled.formatOf("Heading").hasProperty(QTextFormat::FontSizeAdjustment));
    QCOMPARE(styled.formatOf("Heading").fontWeight(), int(QFont::DemiBold));
}

void tst_textStyle::setMarkdown_usesOneStrongWeight()
{
    const Styled styled("A **strong** word");

    QCOMPARE(styled.formatOf("strong").fontWeight(), int(QFont::DemiBold));
    QVERIFY(styled.formatOf("word").fontWeight() <= int(QFont::Normal));
}

void tst_textStyle::setMarkdown_colorsLinksAndInlineCode()
{
    const Styled styled("A [link](there) and `code`");

    QCOMPARE(styled.formatOf("link").foreground().color(), look.link);
    QCOMPARE(styled.formatOf("code").background().color(), look.codeBackground);
    QVERIFY(!styled.formatOf("and").hasProperty(QTextFormat::BackgroundBrush));
}

void tst_textStyle::setMarkdown_keepsTheLook_whenAppliedAgain()
{
    const QString markdown = "# A\n\n- b `c`\n\n> [d](e)\n\n```\nf\n```";
    Styled styled(markdown);
    const QString once = styled.document.toHtml();

    setMarkdown(styled.document, markdown, look);

    QCOMPARE(styled.document.toHtml(), once);
}

void tst_textStyle::setMarkdown_acceptsAnEmptyDocument()
{
    const Styled styled("");

    QCOMPARE(styled.document.blockCount(), 1);
    QVERIFY(linksIn(styled.document).isEmpty());
}

void tst_textStyle::linksIn_findsLinksInReadingOrder()
{
    const Styled styled("See [one](a/b) and\n\n- [two](https://example.org)");

    const QVariantList links = linksIn(styled.document);

    QCOMPARE(links.size(), 2);
    QCOMPARE(links[0].toMap(),
        (QVariantMap{ { "href", "a/b" }, { "text", "one" }, { "start", 4 }, { "end", 7 } }));
    QCOMPARE(links[1].toMap()["href"].toString(), QString("https://example.org"));
}

void tst_textStyle::picturesIn_findsPicturesInReadingOrder()
{
    const HRMarkdownGate gate([](const QString &path) {
        return HRTextPicture{ QUrl("file:///" + path), QSize(20, 10) };
    });
    QTextDocument document;
    setMarkdown(document, "See ![One](a.png) and\n\n- ![Two](b.png)", look, gate);

    const QVariantList pictures = picturesIn(document);

    QCOMPARE(pictures.size(), 2);
    QCOMPARE(pictures[0].toMap(),
        (QVariantMap{ { "url", QUrl("file:///a.png") }, { "text", "One" }, { "start", 4 },
            { "width", 20.0 }, { "height", 10.0 } }));
    QCOMPARE(pictures[1].toMap()["text"].toString(), QString("Two"));
}

void tst_textStyle::setMarkdown_growsLines_unlessAPictureStandsInThem()
{
    const HRMarkdownGate gate([](const QString &) {
        return HRTextPicture{ QUrl("file:///a.png"), QSize(20, 10) };
    });
    QTextDocument document;
    setMarkdown(document, "Text\n\nA ![picture](a.png)", look, gate);

    QCOMPARE(document.firstBlock().blockFormat().lineHeight(), 120.0);
    QCOMPARE(document.lastBlock().blockFormat().lineHeight(), 0.0);
}

void tst_textStyle::setMarkdown_keepsEmptyLinesOfCode()
{
    const Styled styled("```\nfirst\n\nlast\n```\n\n```\nnext\n```\n\nAfter");

    QStringList lines;
    for (QTextBlock block = styled.block(0); block.isValid(); block = block.next())
        lines.append(block.text());
    QCOMPARE(lines.first(), QString("first"));
    QCOMPARE(lines.mid(1, 2), (QStringList{ "", "last" }));
    QCOMPARE(lines.last(), QString("After"));
    QCOMPARE(styled.document.lastBlock().previous().text(), QString("next"));
}

QTEST_MAIN(tst_textStyle)
#include "tst_textStyle.moc"
