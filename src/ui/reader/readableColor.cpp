// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/readableColor_p.h"

#include <algorithm>
#include <cmath>

namespace Hintreels {

namespace {

constexpr int mixingSteps = 20;

// The transfer function of sRGB, as the guidelines give it.
qreal linear(qreal channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

qreal luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

QColor mixed(const QColor &from, const QColor &to, qreal part)
{
    const auto channel
        = [part](qreal a, qreal b) { return std::clamp(a + (b - a) * part, 0.0, 1.0); };
    return QColor::fromRgbF(channel(from.redF(), to.redF()), channel(from.greenF(), to.greenF()),
        channel(from.blueF(), to.blueF()));
}

} // namespace

qreal contrastRatio(const QColor &a, const QColor &b)
{
    const auto [darker, lighter] = std::minmax({ luminance(a), luminance(b) });
    return (lighter + 0.05) / (darker + 0.05);
}

QColor readableColor(const QColor &wanted, const QColor &background, qreal contrast)
{
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    const bool onDark = contrastRatio(white, background) > contrastRatio(black, background);
    for (int step = 0; step < mixingSteps; ++step) {
        const QColor color = mixed(wanted, onDark ? white : black, qreal(step) / mixingSteps);
        if (contrastRatio(color, background) >= contrast)
            return color;
    }
    return onDark ? white : black;
}

} // namespace Hintreels
