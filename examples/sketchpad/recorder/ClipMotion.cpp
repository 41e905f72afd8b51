// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "recorder/ClipMotion.h"

#include <QtMath>

namespace Sketchpad {

namespace {

// Slow enough for eyes that do not know where the pointer will go.
const double startTime = 0.30;
const double pixelsPerSecond = 420;

} // namespace

double eased(double time)
{
    // The polynomial of least jerk between two rests.
    return time * time * time * (10 + time * (6 * time - 15));
}

QPainterPath curveThrough(const QVector<QPointF> &points)
{
    QPainterPath path(points.first());
    for (int i = 0; i + 1 < points.size(); ++i) {
        const QPointF from = points[i];
        const QPointF to = points[i + 1];
        // The tangent at a point is parallel to the line between its neighbours.
        const QPointF leaving = (to - points[qMax(i - 1, 0)]) / 6;
        const QPointF arriving = (points[qMin(i + 2, points.size() - 1)] - from) / 6;
        path.cubicTo(from + leaving, to - arriving, to);
    }
    return path;
}

QPointF tremor(double way)
{
    // Waves whose lengths in pixels share no multiple, so that no pattern shows.
    return { 0.6 * qSin(way / 1.27) + 0.4 * qSin(way / 1.9),
        0.6 * qCos(way / 1.43) + 0.4 * qSin(way / 2.1) };
}

double handTime(double way)
{
    return startTime + way / pixelsPerSecond;
}

} // namespace Sketchpad
