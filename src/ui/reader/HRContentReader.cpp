// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/HRContentReader_p.h"

#include "context/printable_p.h"
#include "ui/reader/HRMeasuring_p.h"
#include "ui/reader/HRUiWords_p.h"
#include "ui/reader/heapTrim_p.h"
#include "ui/reader/hintReading_p.h"
#include "ui/reader/hintText_p.h"
#include "ui/reader/keyCaps_p.h"
#include "ui/reader/pictureFile_p.h"
#include "ui/reader/readableColor_p.h"
#include "ui/reader/textCut_p.h"
#include "ui/reader/textPassages_p.h"
#include "ui/reader/textStyle_p.h"
#include "video/captions_p.h"
#include "video/clipSize_p.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QQuickTextDocument>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>

#include <utility>

namespace Hintreels {

namespace {

constexpr int longestCaption = 500;
constexpr int longestTarget = 200;
constexpr int mostCaptions = 1'000; // nobody writes as many for a clip of some seconds

QLocale localeOf(const HRXmlElement &element, const HRSceneSettings &settings)
{
    const auto *root = qobject_cast<const HRXmlElement *>(element.parent());
    const QString name = root ? root->attribute(QStringLiteral("locale")) : QString();
    return name.isEmpty() ? settings.locales.first() : QLocale(name);
}

/// A text as the UI says it; as it is where the UI has no other, or fails.
QString said(QJSValue say, const QString &text)
{
    if (text.isEmpty() || !say.isCallable())
        return text;
    const QJSValue answer = say.call({ text });
    return answer.isString() ? answer.toString() : text;
}

bool isText(const QVariantMap &block)
{
    const QString kind = block.value(QStringLiteral("block")).toString();
    return kind != QLatin1String("picture") && kind != QLatin1String("video");
}

QVariantMap sizeMap(const QSize &size)
{
    if (size.isEmpty())
        return {};
    return { { QStringLiteral("width"), size.width() },
        { QStringLiteral("height"), size.height() } };
}

} // namespace

HRContentReader::HRContentReader(SettingsSource settings, QObject *parent, FileGate gate)
    : QObject(parent)
    , m_settings(std::move(settings))
    , m_gate(std::move(gate))
    , m_words(std::make_unique<HRUiWords>())
    , m_pictures(new HRMeasuring([](const QString &path, auto) { return pictureSize(path); }, this))
    , m_clips(new HRMeasuring(&clipSize, this))
{
    connect(m_pictures, &HRMeasuring::measured, this, &HRContentReader::tellMeasured);
    connect(m_clips, &HRMeasuring::measured, this, &HRContentReader::tellMeasured);
    QAccessible::installActivationObserver(this);
}

HRContentReader::~HRContentReader()
{
    QAccessible::removeActivationObserver(this);
}

void HRContentReader::setHostColors(const QVariantMap &colors)
{
    if (m_hostColors == colors)
        return;
    m_hostColors = colors;
    Q_EMIT hostColorsChanged();
}

void HRContentReader::setFocusItem(QQuickItem *item)
{
    if (m_focusItem == item)
        return;
    m_focusItem = item;
    Q_EMIT focusItemChanged();
}

QVariantMap HRContentReader::read(HRXmlElement *element, const QJSValue &say) const
{
    if (!element)
        return {};
    m_pictures->forget();
    m_clips->forget();
    const HRSceneSettings settings = m_settings();
    m_beginsSmall
        = settings.beginsSmall && settings.beginsSmall(element->attribute(QStringLiteral("key")));
    m_told = detail();
    QVariantMap hint = readHint(*element, [&say](const QString &text) { return said(say, text); });
    const QLocale locale = localeOf(*element, settings);
    hint.insert(QStringLiteral("rightToLeft"), locale.textDirection() == Qt::RightToLeft);
    return hint;
}

HRReaderSettings::Detail HRContentReader::detail() const
{
    return m_beginsSmall ? HRReaderSettings::summaryDetail : m_settings().detail;
}

QVariantList HRContentReader::shownBlocks(const QVariantList &blocks) const
{
    if (detail() == HRReaderSettings::fullDetail)
        return blocks;
    QVariantList shown;
    for (const QVariant &block : blocks) {
        if (!isSmall() && isText(block.toMap()))
            shown.append(block);
    }
    return shown;
}

void HRContentReader::grow()
{
    m_beginsSmall = false;
    follow();
}

void HRContentReader::follow()
{
    Q_EMIT decided();
    if (m_told == detail())
        return;
    m_told = detail();
    Q_EMIT detailChanged();
}

void HRContentReader::copy(const QVariantMap &hint) const
{
    QGuiApplication::clipboard()->setText(hintText(hint));
}

QString HRContentReader::word(const QString &text) const
{
    return m_words->word(m_settings().locales.first(), text);
}

QVariantList HRContentReader::keyCaps(const QString &shortcut) const
{
    QVariantList strokes;
    QVector<QStringList> caps = keyCapsOf(shortcut);
    const QLocale locale = m_settings().locales.first();
    for (QStringList &keys : caps) {
        for (QString &key : keys)
            key = m_words->key(locale, key);
        strokes.append(QVariant(keys));
    }
    return strokes;
}

QString HRContentReader::spokenKeys(const QString &shortcut, const QString &plus) const
{
    QStringList strokes;
    QVector<QStringList> caps = keyCapsOf(shortcut);
    const QLocale locale = m_settings().locales.first();
    for (QStringList &keys : caps) {
        for (QString &key : keys)
            key = m_words->spokenKey(locale, key);
        strokes.append(keys.join(QChar(u' ') + plus + u' '));
    }
    return strokes.join(QStringLiteral(", "));
}

QVariantMap HRContentReader::picture(const QString &path) const
{
    if (detail() != HRReaderSettings::fullDetail || !mayUse(path, HRFileUse::picture))
        return {};
    QVariantMap picture = sizeMap(m_pictures->size(path));
    if (!picture.isEmpty())
        picture.insert(QStringLiteral("url"), QUrl::fromLocalFile(path));
    return picture;
}

QVariantMap HRContentReader::clip(const QString &path) const
{
    return mayUse(path, HRFileUse::clip) ? sizeMap(m_clips->size(path)) : QVariantMap();
}

QStringList HRContentReader::captionFiles(const QString &clip) const
{
    return Hintreels::captionFiles(clip, m_settings().locales);
}

QString HRContentReader::caption(const QString &text) const
{
    return cutText(text, longestCaption);
}

QVariantList HRContentReader::captions(const QString &path) const
{
    if (!mayUse(path, HRFileUse::text))
        return {};
    QVariantList captions;
    const QVector<HRCaption> read = readCaptions(path).mid(0, mostCaptions);
    for (const HRCaption &caption : read) {
        captions.append(QVariantMap{ { QStringLiteral("start"), caption.start },
            { QStringLiteral("end"), caption.end },
            { QStringLiteral("text"), this->caption(caption.text) } });
    }
    return captions;
}

void HRContentReader::returnMemory() const
{
    trimHeap();
}

QString HRContentReader::shownTarget(const QString &target, const QString &text) const
{
    if (!m_settings().showsTargets || target == text)
        return {};
    return QStringLiteral(" (%1)").arg(cutText(printable(target), longestTarget));
}

bool HRContentReader::reducedMotion() const
{
    return m_settings().reducedMotion;
}

QColor HRContentReader::readable(
    const QColor &wanted, const QColor &background, qreal contrast) const
{
    return readableColor(wanted, background, contrast);
}

void HRContentReader::tellMeasured()
{
    ++m_measured;
    Q_EMIT measuredChanged();
}

QVariantMap HRContentReader::showMarkdown(QQuickTextDocument *document, const QString &markdown,
    const QVariantMap &look, const QJSValue &findPicture) const
{
    QTextDocument *text = document ? document->textDocument() : nullptr;
    if (!text)
        return {};
    const auto find = [&](const QString &path) {
        return pictureInText(findPicture, path, look.value(QStringLiteral("room")).toSizeF());
    };
    setMarkdown(*text, markdown,
        { look.value(QStringLiteral("link")).value<QColor>(),
            look.value(QStringLiteral("codeBackground")).value<QColor>(),
            look.value(QStringLiteral("spacing")).toReal() },
        HRMarkdownGate(find, look.value(QStringLiteral("links")).toInt()));
    tellTargets(*text);
    if (look.value(QStringLiteral("spoken")).toBool())
        return { { QStringLiteral("passages"), passagesIn(*text) } };
    return { { QStringLiteral("links"), linksIn(*text) },
        { QStringLiteral("pictures"), picturesIn(*text) } };
}

void HRContentReader::accessibilityActiveChanged(bool)
{
    Q_EMIT spokenChanged();
}

/// From the last link to the first, so that the positions of the others stay.
void HRContentReader::tellTargets(QTextDocument &text) const
{
    const QVariantList links = m_settings().showsTargets ? linksIn(text) : QVariantList();
    for (auto it = links.crbegin(); it != links.crend(); ++it) {
        const QVariantMap link = it->toMap();
        QTextCursor cursor(&text);
        cursor.setPosition(link.value(QStringLiteral("end")).toInt());
        cursor.insertText(shownTarget(link.value(QStringLiteral("href")).toString(),
                              link.value(QStringLiteral("text")).toString()),
            cursor.block().charFormat());
    }
}

HRTextPicture HRContentReader::pictureInText(
    QJSValue findPicture, const QString &path, const QSizeF &room) const
{
    const QJSValue file = findPicture.call({ path });
    const QVariantMap found = file.isString() ? picture(file.toString()) : QVariantMap();
    const QSizeF size(found.value(QStringLiteral("width")).toReal(),
        found.value(QStringLiteral("height")).toReal());
    return { found.value(QStringLiteral("url")).toUrl(),
        size.scaled(room.boundedTo(size), Qt::KeepAspectRatio).toSize() };
}

} // namespace Hintreels
