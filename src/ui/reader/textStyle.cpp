// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/textStyle_p.h"

#include "ui/reader/HRTextRun_p.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>

namespace Hintreels {

namespace {

constexpr qreal lineHeight = 120; // percent; DejaVu and Noto read well with it at 13 px
constexpr qreal indentPerSpacing = 2.5; // a list's bullet stands clear of the text above it
constexpr int deepestIndent = 8; // lists below that would have no width for their text

bool isListItem(const QTextBlock &block)
{
    return block.textList() != nullptr;
}

qreal spaceBelow(const QTextBlock &block, qreal spacing)
{
    const QTextBlock next = block.next();
    if (!next.isValid() || (isCode(block) && isCode(next)))
        return 0;
    return isListItem(block) && isListItem(next) ? spacing / 2 : spacing;
}

bool holdsPicture(const QTextBlock &block)
{
    return block.text().contains(QChar::ObjectReplacementCharacter);
}

void boundIndent(QTextList *list)
{
    QTextListFormat format = list->format();
    if (format.indent() <= deepestIndent)
        return;
    format.setIndent(deepestIndent);
    list->setFormat(format);
}

void styleBlock(const QTextBlock &block, const HRTextLook &look)
{
    QTextBlockFormat format = block.blockFormat();
    const int quotation = format.intProperty(QTextFormat::BlockQuoteLevel);
    const qreal indent = look.spacing * indentPerSpacing;
    format.setTopMargin(0);
    format.setLeftMargin(isCode(block) ? indent : quotation * indent);
    format.setRightMargin(0);
    format.setBottomMargin(spaceBelow(block, look.spacing));
    // A line is as high as the picture in it, and must not grow by a fifth of that.
    if (!holdsPicture(block))
        format.setLineHeight(lineHeight, QTextBlockFormat::ProportionalHeight);
    QTextCursor(block).setBlockFormat(format);
    if (isListItem(block))
        boundIndent(block.textList());
}

QTextCharFormat styledFormat(
    const QTextCharFormat &markdown, const QTextBlock &block, const HRTextLook &look)
{
    const bool inlineCode = isCode(markdown) && !isCode(block);
    QTextCharFormat format = markdown;
    format.clearProperty(QTextFormat::FontSizeAdjustment);
    if (format.fontWeight() > QFont::Normal)
        format.setFontWeight(QFont::DemiBold);
    if (inlineCode)
        format.setBackground(look.codeBackground);
    if (format.isAnchor())
        format.setForeground(look.link);
    return format;
}

void styleCharacters(QTextDocument &document, const QTextBlock &block, const HRTextLook &look)
{
    const QVector<HRTextRun> runs = runsOf(block);
    for (const HRTextRun &run : runs) {
        QTextCursor cursor(&document);
        cursor.setPosition(run.position);
        cursor.setPosition(run.end(), QTextCursor::KeepAnchor);
        cursor.setCharFormat(styledFormat(run.format, block, look));
    }
}

// Qt's Markdown reader lets an empty line of code follow each code block.
bool isLeftoverOfCode(const QTextBlock &block)
{
    return isCode(block) && block.length() == 1 && !isCode(block.next());
}

void removeLeftovers(QTextDocument &document)
{
    for (int number = document.blockCount() - 1; number > 0; --number) {
        const QTextBlock block = document.findBlockByNumber(number);
        if (isLeftoverOfCode(block))
            QTextCursor(block).deletePreviousChar();
    }
}

} // namespace

void setMarkdown(QTextDocument &document, const QString &markdown, const HRTextLook &look,
    const HRMarkdownGate &gate)
{
    QTextCursor whole(&document);
    whole.beginEditBlock();
    gate.fill(&document, markdown);
    removeLeftovers(document);
    document.setIndentWidth(look.spacing * indentPerSpacing);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        styleBlock(block, look);
        styleCharacters(document, block, look);
    }
    whole.endEditBlock();
}

QVariantMap linkOf(const HRTextRun &run)
{
    return { { QStringLiteral("href"), run.format.anchorHref() },
        { QStringLiteral("text"), run.text }, { QStringLiteral("start"), run.position },
        { QStringLiteral("end"), run.end() } };
}

QVariantMap pictureOf(const HRTextRun &run)
{
    const QTextImageFormat picture = run.format.toImageFormat();
    return { { QStringLiteral("url"), HRMarkdownGate::pictureIn(picture) },
        { QStringLiteral("text"), picture.property(QTextFormat::ImageAltText) },
        { QStringLiteral("start"), run.position }, { QStringLiteral("width"), picture.width() },
        { QStringLiteral("height"), picture.height() } };
}

QVariantList linksIn(const QTextDocument &document)
{
    QVariantList links;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QVector<HRTextRun> runs = runsOf(block);
        for (const HRTextRun &run : runs) {
            if (run.format.isAnchor())
                links.append(linkOf(run));
        }
    }
    return links;
}

QVariantList picturesIn(const QTextDocument &document)
{
    QVariantList pictures;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QVector<HRTextRun> runs = runsOf(block);
        for (const HRTextRun &run : runs) {
            if (run.format.isImageFormat())
                pictures.append(pictureOf(run));
        }
    }
    return pictures;
}

} // namespace Hintreels
