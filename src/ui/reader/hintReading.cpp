// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/hintReading_p.h"

#include "content/HRXmlElement.h"
#include "ui/reader/HRHintRoom_p.h"
#include "ui/reader/hintLinks_p.h"
#include "ui/reader/keyCaps_p.h"
#include "ui/reader/textCut_p.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace Hintreels {

namespace {

constexpr int longestTitle = 300;
constexpr int longestLine = 1'000; // a summary, a shortcut, what a picture shows
constexpr int longestBlock = 10'000;
constexpr int longestList = 300; // lines of Markdown or items: Qt reads lists in quadratic time
constexpr int mostBlocks = 200;

// What is longer is cut before anything looks through it, and is translated no more.
constexpr int longestSource = 100'000;

// A cap is five items in the scene, and takes as much memory as about so many letters.
constexpr int roomOfKey = 30;

// What each kind of block cannot do without; "text" is the text inside the element.
const QMap<QString, QString> neededOfBlock{
    { QStringLiteral("text"), QStringLiteral("text") },
    { QStringLiteral("keys"), QStringLiteral("press") },
    { QStringLiteral("picture"), QStringLiteral("source") },
    { QStringLiteral("note"), QStringLiteral("text") },
    { QStringLiteral("link"), QStringLiteral("to") },
    { QStringLiteral("video"), QStringLiteral("source") },
};

const QStringList attributesOfBlocks{ QStringLiteral("alt"), QStringLiteral("kind"),
    QStringLiteral("loop"), QStringLiteral("press"), QStringLiteral("source"), QStringLiteral("to"),
    QStringLiteral("width") };

bool isMarkdown(const QString &tag)
{
    return tag == QLatin1String("text") || tag == QLatin1String("note");
}

bool isBlank(const QString &line)
{
    return line.trimmed().isEmpty();
}

QString indentation(const QString &line)
{
    const auto end
        = std::find_if_not(line.begin(), line.end(), [](QChar c) { return c.isSpace(); });
    return line.left(int(end - line.begin()));
}

QString commonStart(const QString &a, const QString &b)
{
    const int length = std::min(a.size(), b.size());
    const auto difference = std::mismatch(a.begin(), a.begin() + length, b.begin());
    return a.left(int(difference.first - a.begin()));
}

QString sharedIndentation(const QStringList &lines)
{
    QString shared;
    bool first = true;
    for (const QString &line : lines) {
        if (isBlank(line))
            continue;
        shared = first ? indentation(line) : commonStart(shared, indentation(line));
        first = false;
    }
    return shared;
}

QString oneLine(const QString &source)
{
    return cutText(source, longestSource).simplified();
}

/// As the content has it, without what belongs to the XML around it.
QVariantMap readBlock(const HRXmlElement &element)
{
    const QString tag = element.getTagName();
    QVariantMap block;
    for (const QString &name : attributesOfBlocks) {
        if (element.hasAttribute(name))
            block.insert(name, element.attribute(name));
    }
    const QString content = cutText(element.content(), longestSource);
    block.insert(QStringLiteral("text"), isMarkdown(tag) ? dedent(content) : content.simplified());
    block.insert(QStringLiteral("block"), tag);
    return block;
}

bool showsSomething(const QVariantMap &block)
{
    const auto needed = neededOfBlock.constFind(block.value(QStringLiteral("block")).toString());
    return needed != neededOfBlock.constEnd() && !isBlank(block.value(*needed).toString());
}

/// A line that opens lists within lists makes an item of each, like as many lines.
QString cutLines(const QString &markdown)
{
    static const QRegularExpression itemEnd(
        QStringLiteral(R"(\n|[-*+.)][ \t>]++(?=(?:[-*+]|[0-9]{1,9}[.)])[ \t\n]))"));
    auto ends = itemEnd.globalMatch(markdown);
    for (int item = 1; item < longestList && ends.hasNext(); ++item)
        ends.next();
    return ends.hasNext() ? markdown.left(ends.next().capturedEnd()) + ellipsis : markdown;
}

void takeLine(QVariantMap *block, const QString &name, const HRSay &say, HRHintRoom *room)
{
    const auto attribute = block->find(name);
    if (attribute != block->end())
        *attribute = room->take(say(cutText(attribute->toString(), longestSource)), longestLine);
}

void takeKeys(const QString &shortcut, HRHintRoom *room)
{
    const QVector<QStringList> strokes = keyCapsOf(shortcut);
    for (const QStringList &keys : strokes)
        room->take(keys.size() * roomOfKey);
}

/// As the reader sees it, as far as there is room.
QVariantMap taken(QVariantMap block, const HRSay &say, HRHintRoom *room)
{
    takeLine(&block, QStringLiteral("alt"), say, room);
    takeLine(&block, QStringLiteral("press"), say, room);
    takeKeys(block.value(QStringLiteral("press")).toString(), room);
    const bool unnamedLink = block.value(QStringLiteral("block")) == QLatin1String("link")
        && block.value(QStringLiteral("text")) == QLatin1String("");
    const QString text
        = block.value(unnamedLink ? QStringLiteral("to") : QStringLiteral("text")).toString();
    const QString shown = room->take(say(cutText(text, longestSource)), longestBlock);
    block.insert(QStringLiteral("text"),
        isMarkdown(block.value(QStringLiteral("block")).toString()) ? cutLines(shown) : shown);
    return block;
}

QVariantList withEllipsis(const QVariantList &blocks)
{
    const QVariantMap last{ { QStringLiteral("block"), QStringLiteral("text") },
        { QStringLiteral("text"), QString(ellipsis) } };
    return blocks.mid(0, mostBlocks - 1) << last;
}

QVariantList readBlocks(const HRXmlElement &element, const HRSay &say, HRHintRoom *room)
{
    QVariantList blocks;
    for (const QObject *child : element.children()) {
        const auto *childElement = qobject_cast<const HRXmlElement *>(child);
        if (!childElement || !neededOfBlock.contains(childElement->getTagName()))
            continue;
        const QVariantMap block = readBlock(*childElement);
        if (!showsSomething(block))
            continue;
        if (blocks.size() == mostBlocks || room->isFull())
            return withEllipsis(blocks);
        blocks.append(taken(block, say, room));
    }
    return blocks;
}

QString readSummary(const HRXmlElement &element)
{
    for (const QObject *child : element.children()) {
        const auto *childElement = qobject_cast<const HRXmlElement *>(child);
        if (childElement && childElement->getTagName() == QLatin1String("summary"))
            return oneLine(childElement->content());
    }
    return {};
}

} // namespace

HRHintGist readGist(const HRXmlElement &element)
{
    return { oneLine(element.attribute(QStringLiteral("title"))), readSummary(element) };
}

QVariantMap readHint(const HRXmlElement &element, const HRSay &say)
{
    HRHintRoom room;
    const HRHintGist gist = readGist(element);
    const QString title = room.take(say(gist.title), longestTitle);
    const QString shortcut
        = room.take(oneLine(element.attribute(QStringLiteral("shortcut"))), longestLine);
    takeKeys(shortcut, &room);
    const QString summary = room.take(say(gist.summary), longestLine);
    return {
        { QStringLiteral("title"), title },
        { QStringLiteral("shortcut"), shortcut },
        { QStringLiteral("documentation"),
            element.attribute(QStringLiteral("documentation")).trimmed() },
        { QStringLiteral("summary"), summary },
        { QStringLiteral("blocks"), limitLinks(readBlocks(element, say, &room)) },
    };
}

QString dedent(const QString &text)
{
    QStringList lines = text.split(u'\n');
    if (!isBlank(lines.first()))
        lines.first() = lines.first().trimmed().prepend(sharedIndentation(lines.mid(1)));
    const QString shared = sharedIndentation(lines);
    for (QString &line : lines)
        line = isBlank(line) ? QString() : line.mid(shared.size());
    while (!lines.isEmpty() && lines.first().isEmpty())
        lines.removeFirst();
    while (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    return lines.join(u'\n');
}

} // namespace Hintreels
