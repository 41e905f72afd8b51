// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/StandardUiFixture.h"
#include "ui/reader/readableColor_p.h"

#include <QHash>

/// What a part of a picture is painted in.
struct PaintedColors
{
    QColor ground; ///< the most frequent colour
    QColor ink; ///< the one that contrasts most with it

    qreal contrast() const { return Hintreels::contrastRatio(ground, ink); }

    /// For the message of a test that fails.
    QString described(const QString &what) const
    {
        return QString("%1: %2 on %3, %4").arg(what, ink.name(), ground.name()).arg(contrast());
    }
};

/// Smooth letters have all shades between ground and ink. The guidelines mean the colours before
/// they are smoothed, so what is found here is at most theirs, and equal where a stroke covers a
/// pixel.
inline PaintedColors colorsIn(const QImage &picture)
{
    QHash<QRgb, int> pixels;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ++pixels[picture.pixel(x, y)];
    }
    PaintedColors found;
    int most = 0;
    for (auto it = pixels.cbegin(); it != pixels.cend(); ++it) {
        if (it.value() > most) {
            most = it.value();
            found.ground = QColor(it.key());
        }
    }
    found.ink = found.ground;
    for (auto it = pixels.cbegin(); it != pixels.cend(); ++it) {
        if (Hintreels::contrastRatio(QColor(it.key()), found.ground) > found.contrast())
            found.ink = QColor(it.key());
    }
    return found;
}

/// Where an item is in the popup, in pixels.
inline QRect placeOf(const QQuickItem &item)
{
    return item.mapRectToScene(QRectF(0, 0, item.width(), item.height())).toAlignedRect();
}

inline void scrollTo(const StandardUiFixture &fixture, QQuickItem &item)
{
    QMetaObject::invokeMethod(
        fixture.item("page"), "reveal", Q_ARG(QVariant, QVariant::fromValue(&item)));
}

/// An item as the popup shows it, after it has been scrolled into sight.
inline QImage pictureOf(const StandardUiFixture &fixture, QQuickItem &item)
{
    scrollTo(fixture, item);
    return fixture.view()->grabWindow().copy(placeOf(item));
}

/// What shows words: texts, and the places of links in them.
inline QList<QQuickItem *> wordsBelow(QQuickItem *root)
{
    QList<QQuickItem *> words;
    const auto items = itemsBelow(root);
    for (QQuickItem *item : items) {
        const bool isText = item->inherits("QQuickText") || item->inherits("QQuickTextEdit");
        const bool isLink = item->property("place").toMap().contains("href");
        if (item->isVisible()
            && ((isText && !item->property("text").toString().isEmpty()) || isLink))
            words.append(item);
    }
    return words;
}

/// A hint with words of each kind.
inline const QByteArray allKindsOfWords = R"(
<hintreel key="key" title="Pen" shortcut="Ctrl+P" documentation="pen">
    <summary>Draws a line.</summary>
    <text><![CDATA[
A paragraph with **bold** words and [a link](inside/text).

- a list

| a table | of two |
|---------|--------|
| and one | row    |
]]></text>
    <text>`code in a line`</text>
    <text><![CDATA[
    a block of code
]]></text>
    <keys press="Shift+Drag, B">Does it.</keys>
    <picture source="good.png" alt="A picture">A caption</picture>
    <note kind="tip">A tip, and [a link in it](inside/tip)</note>
    <note>A note with `code`</note>
    <note kind="warning">A warning</note>
    <link to="https://example.org/there">There</link>
</hintreel>)";
