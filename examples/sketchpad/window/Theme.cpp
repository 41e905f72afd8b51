// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "window/Theme.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

namespace Sketchpad {

namespace {

struct Colors
{
    QRgb window;
    QRgb base;
    QRgb button;
    QRgb text;
    QRgb dimText;
    QRgb mid;
    QRgb dark;
    QRgb highlight;
    QRgb link;
    QRgb toolTip;
};

constexpr Colors lightColors{ 0xf3f4f6, 0xffffff, 0xf7f8fa, 0x1f2733, 0x9aa1ac, 0xd9dce1, 0xc3c7ce,
    0x2f6fde, 0x1f5fc4, 0xffffff };
constexpr Colors darkColors{ 0x262a31, 0x1c1f25, 0x30353e, 0xe6e9ee, 0x7b828e, 0x1a1d22, 0x121418,
    0x4d8dff, 0x7fb0ff, 0x30353e };
constexpr Colors contrastColors{ 0xffffff, 0xffffff, 0xffffff, 0x000000, 0x404040, 0x000000,
    0x000000, 0x0000c0, 0x0000c0, 0xffffff };
constexpr Colors darkContrastColors{ 0x000000, 0x000000, 0x000000, 0xffffff, 0xc0c0c0, 0xffffff,
    0xffffff, 0x3a8cff, 0x7fb0ff, 0x000000 };

const Colors &colorsOf(Theme theme)
{
    switch (theme) {
    case Theme::Dark:
        return darkColors;
    case Theme::Contrast:
        return contrastColors;
    case Theme::DarkContrast:
        return darkContrastColors;
    default:
        return lightColors;
    }
}

QPalette paletteOf(const Colors &colors)
{
    QPalette palette((QColor(colors.button)), QColor(colors.window));
    palette.setColor(QPalette::Base, colors.base);
    palette.setColor(QPalette::AlternateBase, colors.window);
    for (QPalette::ColorRole role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
             QPalette::ToolTipText, QPalette::BrightText }) {
        palette.setColor(role, colors.text);
        palette.setColor(QPalette::Disabled, role, colors.dimText);
    }
    palette.setColor(QPalette::PlaceholderText, colors.dimText);
    palette.setColor(QPalette::Mid, colors.mid);
    palette.setColor(QPalette::Dark, colors.dark);
    palette.setColor(QPalette::Highlight, colors.highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, colors.link);
    palette.setColor(QPalette::ToolTipBase, colors.toolTip);
    return palette;
}

} // namespace

void applyTheme(Theme theme)
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(paletteOf(colorsOf(theme)));
}

} // namespace Sketchpad
