// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/HRContentReader_p.h"

#include "ui/HRReadableColor_p.h"
#include "ui/HRTextStyle_p.h"
#include "video/HRCaptions_p.h"
#include "video/HRClipSize_p.h"

#include <QFileInfo>
#include <QImageReader>
#include <QQuickTextDocument>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace Hintreels {

namespace {

constexpr qint64 largestPicture = 64'000'000; // pixels

const QString summaryTag = QStringLiteral("summary");

// What each kind of block cannot do without; "text" is the text inside the element.
const QMap<QString, QString> neededOfBlock{
    { QStringLiteral("text"), QStringLiteral("text") },
    { QStringLiteral("keys"), QStringLiteral("press") },
    { QStringLiteral("picture"), QStringLiteral("source") },
    { QStringLiteral("note"), QStringLiteral("text") },
    { QStringLiteral("link"), QStringLiteral("to") },
    { QStringLiteral("video"), QStringLiteral("source") },
};

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

QVariantMap readBlock(const HRXmlElement &element)
{
    const QString tag = element.getTagName();
    QVariantMap block;
    const QStringList names = element.attributeNames();
    for (const QString &name : names)
        block.insert(name, element.attribute(name));
    const QString content = element.content();
    block.insert("text", isMarkdown(tag) ? dedent(content) : content.simplified());
    block.insert("block", tag);
    return block;
}

bool showsSomething(const QVariantMap &block)
{
    const auto needed = neededOfBlock.constFind(block.value("block").toString());
    return needed != neededOfBlock.constEnd() && !isBlank(block.value(*needed).toString());
}

QVariantList readBlocks(const HRXmlElement &element)
{
    QVariantList blocks;
    for (const QObject *child : element.children()) {
        const auto *childElement = qobject_cast<const HRXmlElement *>(child);
        const QVariantMap block = childElement ? readBlock(*childElement) : QVariantMap();
        if (showsSomething(block))
            blocks.append(block);
    }
    return blocks;
}

QString readSummary(const HRXmlElement &element)
{
    for (const QObject *child : element.children()) {
        const auto *childElement = qobject_cast<const HRXmlElement *>(child);
        if (childElement && childElement->getTagName() == summaryTag)
            return childElement->content().simplified();
    }
    return {};
}

QLocale localeOf(const HRXmlElement &element, const HRReaderSettings &settings)
{
    const auto *root = qobject_cast<const HRXmlElement *>(element.parent());
    const QString name = root ? root->attribute("locale") : QString();
    return name.isEmpty() ? settings.locales.first() : QLocale(name);
}

// A plus sign joins what stands before it to the next key, unless nothing does: then it is the key.
QStringList keysOfStroke(const QString &stroke)
{
    QStringList keys;
    QString key;
    for (const QChar c : stroke) {
        const bool joins = c == '+' && !isBlank(key);
        if (joins)
            keys.append(key.trimmed());
        key = joins ? QString() : key + c;
    }
    if (!isBlank(key))
        keys.append(key.trimmed());
    return keys;
}

} // namespace

QString dedent(const QString &text)
{
    QStringList lines = text.split('\n');
    if (!isBlank(lines.first()))
        lines.first() = lines.first().trimmed().prepend(sharedIndentation(lines.mid(1)));
    const QString shared = sharedIndentation(lines);
    for (QString &line : lines)
        line = isBlank(line) ? QString() : line.mid(shared.size());
    while (!lines.isEmpty() && lines.first().isEmpty())
        lines.removeFirst();
    while (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    return lines.join('\n');
}

HRContentReader::HRContentReader(SettingsSource settings, QObject *parent)
    : QObject(parent)
    , m_settings(std::move(settings))
{
}

QVariantMap HRContentReader::read(HRXmlElement *element) const
{
    if (!element)
        return {};
    const QLocale locale = localeOf(*element, m_settings());
    return {
        { "title", element->attribute("title").simplified() },
        { "shortcut", element->attribute("shortcut").simplified() },
        { "documentation", element->attribute("documentation").trimmed() },
        { "summary", readSummary(*element) },
        { "rightToLeft", locale.textDirection() == Qt::RightToLeft },
        { "blocks", readBlocks(*element) },
    };
}

QVariantList HRContentReader::keyCaps(const QString &shortcut) const
{
    QVariantList strokes;
    const QStringList parts = shortcut.split(QStringLiteral(", "), Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const QStringList keys = keysOfStroke(part);
        if (!keys.isEmpty())
            strokes.append(QVariant(keys));
    }
    return strokes;
}

QVariantMap HRContentReader::picture(const QString &path) const
{
    if (!QFileInfo(path).isFile())
        return {};
    QImageReader reader(path);
    const QSize size = reader.canRead() ? reader.size() : QSize();
    if (size.isEmpty() || qint64(size.width()) * size.height() > largestPicture)
        return {};
    return { { "url", QUrl::fromLocalFile(path) }, { "width", size.width() },
        { "height", size.height() } };
}

QVariantMap HRContentReader::clip(const QString &path) const
{
    const QSize size = clipSize(path);
    if (size.isEmpty())
        return {};
    return { { "width", size.width() }, { "height", size.height() } };
}

QStringList HRContentReader::captionFiles(const QString &clip) const
{
    return Hintreels::captionFiles(clip, m_settings().locales);
}

QVariantList HRContentReader::captions(const QString &path) const
{
    QVariantList captions;
    const QVector<HRCaption> read = readCaptions(path);
    for (const HRCaption &caption : read) {
        captions.append(QVariantMap{
            { "start", caption.start }, { "end", caption.end }, { "text", caption.text } });
    }
    return captions;
}

bool HRContentReader::reducedMotion() const
{
    return m_settings().reducedMotion;
}

QColor HRContentReader::readable(const QColor &wanted, const QColor &background) const
{
    return readableColor(wanted, background);
}

QVariantList HRContentReader::showMarkdown(
    QQuickTextDocument *document, const QString &markdown, const QVariantMap &look) const
{
    QTextDocument *text = document ? document->textDocument() : nullptr;
    if (!text)
        return {};
    setMarkdown(*text, markdown,
        { look.value("link").value<QColor>(), look.value("codeBackground").value<QColor>(),
            look.value("spacing").toReal() });
    return linksIn(*text);
}

} // namespace Hintreels
