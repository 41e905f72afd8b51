// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/textPassages_p.h"

#include "ui/reader/HRTextRun_p.h"
#include "ui/reader/textStyle_p.h"

#include <QTextDocument>
#include <QTextList>

namespace Hintreels {

namespace {

QVariantMap passage(const QString &kind, int start, int end, const QString &text)
{
    return { { QStringLiteral("kind"), kind }, { QStringLiteral("start"), start },
        { QStringLiteral("end"), end }, { QStringLiteral("text"), text },
        { QStringLiteral("parts"), QVariantList() } };
}

QString kindOf(const QTextBlock &block)
{
    if (block.textList())
        return QStringLiteral("item");
    return block.blockFormat().headingLevel() > 0 ? QStringLiteral("heading")
                                                  : QStringLiteral("paragraph");
}

/// What stands before an item, where that says something: a bullet does not.
QString numberOf(const QTextBlock &block)
{
    const QTextList *list = block.textList();
    const bool isNumbered = list && list->format().style() <= QTextListFormat::ListDecimal;
    return isNumbered ? list->itemText(block) + u' ' : QString();
}

QString kindOf(const HRTextRun &run)
{
    if (run.format.isImageFormat())
        return QStringLiteral("picture");
    return run.format.isAnchor() ? QStringLiteral("link") : QStringLiteral("text");
}

QVariantMap partOf(const HRTextRun &run)
{
    const QString kind = kindOf(run);
    QVariantMap part = kind == QLatin1String("picture") ? pictureOf(run) : linkOf(run);
    part.insert(QStringLiteral("kind"), kind);
    return part;
}

/// Text in several styles is one part.
void append(QVariantList *parts, const QVariantMap &part)
{
    const QString kind = QStringLiteral("kind");
    const QString text = QStringLiteral("text");
    const QVariantMap last = parts->isEmpty() ? QVariantMap() : parts->last().toMap();
    if (part.value(kind) != text || last.value(kind) != text) {
        parts->append(part);
        return;
    }
    parts->last() = passage(text, last.value(QStringLiteral("start")).toInt(),
        part.value(QStringLiteral("end")).toInt(),
        last.value(text).toString() + part.value(text).toString());
}

QVariantList passagesOf(const QTextBlock &block)
{
    const int start = block.position();
    QVariantList parts;
    const QString number = numberOf(block);
    if (!number.isEmpty())
        parts.append(passage(QStringLiteral("text"), start, start, number));
    const QVector<HRTextRun> runs = runsOf(block);
    for (const HRTextRun &run : runs)
        append(&parts, partOf(run));
    return parts;
}

QVariantMap passageOf(const QTextBlock &block)
{
    const QVariantList parts = passagesOf(block);
    const QVariantMap first = parts.value(0).toMap();
    const bool isText
        = parts.size() == 1 && first.value(QStringLiteral("kind")) == QLatin1String("text");
    QVariantMap found
        = passage(kindOf(block), block.position(), block.position() + block.length() - 1,
            isText ? first.value(QStringLiteral("text")).toString() : QString());
    if (!isText)
        found.insert(QStringLiteral("parts"), parts);
    return found;
}

/// Adds an item to the list that it follows, or to a new one.
void appendItem(QVariantList *passages, const QVariantMap &item)
{
    const QString list = QStringLiteral("list");
    QVariantMap last = passages->isEmpty() ? QVariantMap() : passages->takeLast().toMap();
    if (last.value(QStringLiteral("kind")) != list) {
        if (!last.isEmpty())
            passages->append(last);
        last = passage(list, item.value(QStringLiteral("start")).toInt(), 0, QString());
    }
    last.insert(QStringLiteral("end"), item.value(QStringLiteral("end")));
    last.insert(
        QStringLiteral("parts"), last.value(QStringLiteral("parts")).toList() << QVariant(item));
    passages->append(last);
}

} // namespace

QVariantList passagesIn(const QTextDocument &document)
{
    QVariantList passages;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.length() == 1)
            continue;
        if (block.textList())
            appendItem(&passages, passageOf(block));
        else
            passages.append(passageOf(block));
    }
    return passages;
}

} // namespace Hintreels
