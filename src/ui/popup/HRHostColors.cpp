// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRHostColors_p.h"

#include "ui/reader/readableColor_p.h"

#include <QApplication>
#include <QEvent>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QPointer>
#include <QWidget>

#include <optional>

namespace Hintreels {

namespace {

// Enough to tell a background from what is painted on it, and quick to paint.
constexpr int pictureLength = 64; // px

// Painting rounds colours, and a gradient is still the colour that it begins with.
constexpr int sameChannel = 8;

std::optional<QPalette> namedPalette(const QObject &object)
{
    const QVariant palette = object.property("hintreelPalette");
    return palette.canConvert<QPalette>() ? std::optional(palette.value<QPalette>()) : std::nullopt;
}

std::optional<QPalette> paletteOfHost(const QWidget &reference)
{
    for (const QWidget *widget = &reference; widget; widget = widget->parentWidget()) {
        if (const auto palette = namedPalette(*widget))
            return palette;
    }
    return namedPalette(*qApp);
}

/// A window without what is in it, made small.
QImage pictureOf(QWidget &window)
{
    QImage picture(pictureLength, pictureLength, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.scale(qreal(pictureLength) / window.width(), qreal(pictureLength) / window.height());
    window.render(&painter, QPoint(), QRegion(), QWidget::DrawWindowBackground);
    return picture;
}

/// The colour of most of a picture; invalid where that can be seen through.
QColor mainColor(const QImage &picture)
{
    QHash<QRgb, int> counts;
    QRgb best = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb color = picture.pixel(x, y);
            if (++counts[color] > counts.value(best))
                best = color;
        }
    }
    return qAlpha(best) == 255 ? QColor(best) : QColor();
}

bool areAlike(const QColor &a, const QColor &b)
{
    return qAbs(a.red() - b.red()) <= sameChannel && qAbs(a.green() - b.green()) <= sameChannel
        && qAbs(a.blue() - b.blue()) <= sameChannel;
}

QColor blackOrWhite(const QColor &background)
{
    const bool isDark = contrastRatio(Qt::white, background) > contrastRatio(Qt::black, background);
    return isDark ? Qt::white : Qt::black;
}

QVariantMap asMap(const QPalette &palette, const QColor &window, const QColor &text)
{
    const auto color
        = [&](QPalette::ColorRole role) { return palette.color(QPalette::Active, role); };
    return { { QStringLiteral("window"), window }, { QStringLiteral("windowText"), text },
        { QStringLiteral("base"), window },
        { QStringLiteral("highlight"), color(QPalette::Highlight) },
        { QStringLiteral("highlightedText"), color(QPalette::HighlightedText) } };
}

} // namespace

QVariantMap HRHostColors::colorsFor(QWidget &widget)
{
    const std::optional<QPalette> named = paletteOfHost(widget);
    widget.ensurePolished();
    const QPalette palette = named ? *named : widget.palette();
    const QColor &window = palette.color(QPalette::Active, QPalette::Window);
    const QColor &text = palette.color(QPalette::Active, QPalette::WindowText);
    const QColor shown = named ? QColor() : backgroundOf(*widget.window());
    if (!shown.isValid() || areAlike(shown, window))
        return asMap(palette, window, readableColor(text, window));
    return asMap(palette, shown, blackOrWhite(shown));
}

bool HRHostColors::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::PaletteChange)
        forget(watched);
    return false;
}

QColor HRHostColors::backgroundOf(QWidget &window)
{
    const auto known = m_backgrounds.constFind(&window);
    if (known != m_backgrounds.constEnd())
        return *known;
    if (!window.isVisible() || window.size().isEmpty())
        return {};
    const QPointer<HRHostColors> guarded = this;
    const QPointer<QWidget> painted = &window;
    const QColor background = mainColor(pictureOf(window));
    if (!guarded || !painted)
        return {};
    m_backgrounds.insert(&window, background);
    window.installEventFilter(this);
    connect(&window, &QObject::destroyed, this, &HRHostColors::forget, Qt::UniqueConnection);
    return background;
}

} // namespace Hintreels
