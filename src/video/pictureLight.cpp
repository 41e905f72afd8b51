// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/pictureLight_p.h"

#include <array>
#include <cmath>

namespace Hintreels {

namespace {

constexpr int samples = 8; // of a part in each direction

/// Linear parts of a colour.
struct Rgb
{
    float red = 0;
    float green = 0;
    float blue = 0;
};

/// By the definition of relative luminance in WCAG 2.2.
float linear(int value)
{
    const float part = float(value) / 255;
    return part <= 0.04045F ? part / 12.92F : std::pow((part + 0.055F) / 1.055F, 2.4F);
}

std::array<float, 256> makeLinearTable()
{
    std::array<float, 256> table{};
    for (int value = 0; value < 256; ++value)
        table[size_t(value)] = linear(value);
    return table;
}

Rgb meanOf(const QImage &picture, const QRect &part)
{
    static const std::array<float, 256> linearOf = makeLinearTable();
    const int stepX = (part.width() + samples - 1) / samples;
    const int stepY = (part.height() + samples - 1) / samples;
    Rgb sum;
    int count = 0;
    for (int y = part.top(); y <= part.bottom(); y += stepY) {
        const auto *row = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        for (int x = part.left(); x <= part.right(); x += stepX, ++count) {
            sum.red += linearOf[size_t(qRed(row[x]))];
            sum.green += linearOf[size_t(qGreen(row[x]))];
            sum.blue += linearOf[size_t(qBlue(row[x]))];
        }
    }
    const auto all = float(count);
    return { sum.red / all, sum.green / all, sum.blue / all };
}

/// In the u' v' diagram, by the matrix of sRGB; black lies where white and all greys do.
float distanceToRed(const Rgb &color)
{
    const float x = 0.4124F * color.red + 0.3576F * color.green + 0.1805F * color.blue;
    const float y = 0.2126F * color.red + 0.7152F * color.green + 0.0722F * color.blue;
    const float z = 0.0193F * color.red + 0.1192F * color.green + 0.9505F * color.blue;
    const float sum = x + 15 * y + 3 * z;
    const bool isBlack = sum < 1e-4F;
    const float u = isBlack ? 0.1978F : 4 * x / sum;
    const float v = isBlack ? 0.4683F : 9 * y / sum;
    return std::hypot(u - 0.4507F, v - 0.5229F);
}

} // namespace

HRLight lightOf(const QImage &picture, const QRect &part)
{
    const Rgb mean = meanOf(picture, part);
    const float luminance = 0.2126F * mean.red + 0.7152F * mean.green + 0.0722F * mean.blue;
    const float all = mean.red + mean.green + mean.blue;
    return { luminance, distanceToRed(mean), all > 0 && mean.red / all >= 0.8F };
}

} // namespace Hintreels
