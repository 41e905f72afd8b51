// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRFlashMeter_p.h"

namespace Hintreels {

namespace {

constexpr int mostColumns = 32;
constexpr int mostRows = 64;
constexpr double shownWidth = 480.0; // pixels

// The field of 10 degrees that 2.3.1 looks at, and the part of it that counts.
constexpr double fieldWidth = 341.0; // pixels
constexpr double fieldHeight = 256.0;
constexpr double leastArea = fieldWidth * fieldHeight / 4;

constexpr float leastLuminance = 0.1F; // as a change
constexpr float brightest = 0.8F; // that the darker side may be, and is no longer
constexpr float leastColor = 0.2F; // as a change

constexpr double timeRounding = 1e-6; // seconds: times are sums of fractions

/// Where part @p index of @p count begins, of a length.
int edge(int index, int count, int length)
{
    return int(qint64(index) * length / count);
}

/// How many parts of @p part fit into @p whole, at least one and at most @p most.
int fitting(double whole, double part, int most)
{
    return qBound(1, qRound(whole / part), most);
}

/// The largest number of marks in any rectangle of the size of @p field in a grid.
/// @param marks 0 or 1, row by row
int mostMarked(const std::vector<int> &marks, const QSize &grid, const QSize &field)
{
    // Of each corner, the marks above it and to its left.
    const qsizetype stride = grid.width() + 1;
    std::vector<int> sums(size_t(stride) * size_t(grid.height() + 1), 0);
    const int *mark = marks.data();
    int most = 0;
    for (int y = 1; y <= grid.height(); ++y) {
        for (int x = 1; x <= grid.width(); ++x) {
            int *corner = sums.data() + y * stride + x;
            *corner = *mark++ + corner[-1] + corner[-stride] - corner[-stride - 1];
            if (x < field.width() || y < field.height())
                continue;
            const int *top = corner - field.height() * stride;
            most = qMax(most, *corner - corner[-field.width()] - *top + top[-field.width()]);
        }
    }
    return most;
}

} // namespace

void HRFlashMeter::add(const HRVideoFrame &picture, double seconds)
{
    if (picture.isNull())
        return;
    const bool isLikeLast = picture.damageBase() != 0 && picture.damageBase() == m_last;
    m_last = picture.cacheKey();
    if (picture.size() != m_size)
        divide(picture.size());
    bool isAnotherChange = false;
    for (Place &place : m_places) {
        if (isLikeLast && !picture.damage().intersects(place.pixels))
            continue;
        if (follow(lightOf(picture, place.pixels), seconds, &place))
            isAnotherChange = true;
    }
    const double since = seconds - 1.0 + timeRounding;
    while (isAnotherChange
        && (isWide(m_most + 1, &Place::luminance, since) || isWide(m_most + 1, &Place::red, since)))
        ++m_most;
}

void HRFlashMeter::divide(const QSize &picture)
{
    m_size = picture;
    m_columns = qMin(picture.width(), mostColumns);
    const double side = double(picture.width()) / m_columns;
    m_rows = fitting(picture.height(), side, qMin(picture.height(), mostRows));
    m_places.clear();
    for (int row = 0; row < m_rows; ++row) {
        for (int column = 0; column < m_columns; ++column) {
            const int left = edge(column, m_columns, picture.width());
            const int right = edge(column + 1, m_columns, picture.width());
            const int top = edge(row, m_rows, picture.height());
            const int bottom = edge(row + 1, m_rows, picture.height());
            m_places.push_back({ QRect(left, top, right - left, bottom - top), {}, {} });
        }
    }
}

/// @return whether a change of either kind is complete
bool HRFlashMeter::follow(const HRLight &light, double seconds, Place *place)
{
    const bool isDark = light.luminance < brightest;
    const bool changes = place->luminance.follow(light.luminance, isDark, leastLuminance, seconds);
    const bool changesRed
        = place->red.follow(light.distanceToRed, light.isSaturatedRed, leastColor, seconds);
    return changes || changesRed;
}

/// Whether so many flashes of a kind take up enough of any one field.
bool HRFlashMeter::isWide(int flashes, HRSwings Place::*kind, double since) const
{
    std::vector<int> marks;
    marks.reserve(m_places.size());
    for (const Place &place : m_places)
        marks.push_back((place.*kind).countSince(since) >= 2 * flashes ? 1 : 0);
    const double width = shownWidth / m_columns;
    const double height = shownWidth * m_size.height() / m_size.width() / m_rows;
    const QSize field(fitting(fieldWidth, width, m_columns), fitting(fieldHeight, height, m_rows));
    return mostMarked(marks, QSize(m_columns, m_rows), field) * width * height >= leastArea;
}

} // namespace Hintreels
