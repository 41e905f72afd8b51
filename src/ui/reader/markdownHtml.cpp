// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/markdownHtml_p.h"

#include "ui/reader/HRTextRun_p.h"

#include <QRegularExpression>
#include <QTextCursor>
#include <QTextDocument>

namespace Hintreels {

namespace {

// GitHub's flavour without HTML, and without its tables: they are read cell by cell, and take
// frames into the document that cannot be cut through.
constexpr int tables = 0x0100;
const QTextDocument::MarkdownFeatures flavour(
    (QTextDocument::MarkdownDialectGitHub & ~tables) | QTextDocument::MarkdownNoHTML);

// They stand for "\<" and "&lt;" while HTML is taken out. No text has them, and they mean nothing
// to a document, unlike the two before them.
constexpr QChar escapedBracket(0xfdd2);
constexpr QChar namedBracket(0xfdd3);

// Tags, comments, instructions, declarations and character data, as Markdown tells them from text.
// A comment longer than that stays: each one that is never closed would be looked for to the end.
const QRegularExpression &htmlPattern()
{
    static const QRegularExpression pattern(QStringLiteral(
        R"(<[A-Za-z][A-Za-z0-9-]*+(?:\s++[\w:][\w.:-]*+(?:\s*+=\s*+(?:[^\s"'=<>`]++|'[^']*+'|"[^"]*+"))?+)*+\s*+/?>)"
        R"(|</[A-Za-z][A-Za-z0-9-]*+\s*+>|<!--.{0,1000}?-->|<\?.{0,1000}?\?>)"
        R"(|<![A-Za-z][^<>]*+>|<!\[CDATA\[.{0,1000}?\]\]>)"));
    return pattern;
}

/// The Markdown with its escaped brackets marked, so that they are not taken for HTML.
QString withMarks(const QString &markdown)
{
    QString marked;
    for (int i = 0; i < markdown.size(); ++i) {
        const QStringView rest = QStringView(markdown).mid(i);
        const bool escape = rest.startsWith(u'\\');
        const bool named = rest.startsWith(QLatin1String("&lt;"));
        if (named || rest.startsWith(QLatin1String("\\<")))
            marked += named ? namedBracket : escapedBracket;
        else
            marked += rest.left(escape ? 2 : 1);
        i += named ? 3 : escape ? 1 : 0;
    }
    return marked;
}

QString withoutMarks(QString text, bool code)
{
    text.replace(escapedBracket, code ? QStringLiteral("\\<") : QStringLiteral("<"));
    return text.replace(namedBracket, code ? QStringLiteral("&lt;") : QStringLiteral("<"));
}

QTextCursor selected(QTextDocument *document, int position, int length)
{
    QTextCursor cursor(document);
    cursor.setPosition(position);
    cursor.setPosition(position + length, QTextCursor::KeepAnchor);
    return cursor;
}

/// A block's text with blanks where it is code, and where pictures stand.
QString proseOf(const QTextBlock &block)
{
    QString prose = block.text();
    const QVector<HRTextRun> runs = runsOf(block);
    for (const HRTextRun &run : runs) {
        if (isCode(block) || isCode(run.format) || run.format.isImageFormat())
            prose.replace(
                run.position - block.position(), run.length(), QString(run.length(), u' '));
    }
    return prose;
}

struct Piece
{
    int position;
    int length;
};

QVector<Piece> htmlIn(const QTextBlock &block)
{
    QVector<Piece> pieces;
    if (!block.text().contains(u'<'))
        return pieces;
    const QString prose = proseOf(block);
    for (auto it = htmlPattern().globalMatch(prose); it.hasNext();) {
        const QRegularExpressionMatch html = it.next();
        pieces.append({ block.position() + int(html.capturedStart()), int(html.capturedLength()) });
    }
    return pieces;
}

/// Removes a block that holds nothing; the only one stays.
void removeBlock(const QTextBlock &block)
{
    const QTextBlock next = block.next();
    QTextCursor cursor(block);
    if (block.previous().isValid()) {
        cursor.deletePreviousChar();
    } else if (next.isValid()) {
        const QTextBlockFormat format = next.blockFormat();
        cursor.deleteChar();
        cursor.setBlockFormat(format);
    }
}

/// Takes the HTML out of a block, and the block out where it held nothing else.
void takeHtmlOut(QTextDocument *document, const QTextBlock &block)
{
    const QVector<Piece> pieces = htmlIn(block);
    for (auto piece = pieces.rbegin(); piece != pieces.rend(); ++piece)
        selected(document, piece->position, piece->length).removeSelectedText();
    if (!pieces.isEmpty() && block.text().trimmed().isEmpty())
        removeBlock(block);
}

QTextCharFormat withoutMarks(QTextCharFormat format)
{
    for (const int property :
        { QTextFormat::AnchorHref, QTextFormat::ImageName, QTextFormat::ImageAltText }) {
        if (format.hasProperty(property))
            format.setProperty(property, withoutMarks(format.stringProperty(property), false));
    }
    return format;
}

void takeMarksOut(QTextDocument *document, const HRTextRun &run)
{
    const QTextCharFormat format = withoutMarks(run.format);
    const QString text = withoutMarks(run.text, isCode(format));
    if (text != run.text || format != run.format)
        selected(document, run.position, run.length()).insertText(text, format);
}

void takeMarksOut(QTextDocument *document, const QTextBlock &block)
{
    const QVector<HRTextRun> runs = runsOf(block);
    for (auto run = runs.rbegin(); run != runs.rend(); ++run)
        takeMarksOut(document, *run);
}

/// From the end, so that what is yet to come keeps its place.
template <typename Change>
void changeBlocks(QTextDocument *document, Change change)
{
    for (int number = document->blockCount() - 1; number >= 0; --number)
        change(document, document->findBlockByNumber(number));
}

} // namespace

void setMarkdownWithoutHtml(QTextDocument *document, const QString &markdown)
{
    const QString marked = withMarks(markdown);
    document->setMarkdown(marked, flavour);
    if (marked.contains(u'<'))
        changeBlocks(document, takeHtmlOut);
    if (marked != markdown)
        changeBlocks(document, qOverload<QTextDocument *, const QTextBlock &>(&takeMarksOut));
}

} // namespace Hintreels
