// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "drawing/Geometry.h"

#include <QLineF>
#include <QtMath>

namespace Sketchpad {

namespace {

// More would take the corners that are meant.
constexpr int roundsOfSteadying = 3;

QPointF offsetTo(const QRectF &all, const QRectF &rect, Alignment alignment)
{
    switch (alignment) {
    case Alignment::Left:
        return { all.left() - rect.left(), 0 };
    case Alignment::Center:
        return { all.center().x() - rect.center().x(), 0 };
    case Alignment::Right:
        return { all.right() - rect.right(), 0 };
    case Alignment::Top:
        return { 0, all.top() - rect.top() };
    case Alignment::Middle:
        return { 0, all.center().y() - rect.center().y() };
    case Alignment::Bottom:
        return { 0, all.bottom() - rect.bottom() };
    }
    return {};
}

QVector<QPointF> thinnedOut(const QVector<QPointF> &points, qreal tolerance)
{
    QVector<QPointF> kept;
    for (const QPointF &point : points) {
        if (kept.isEmpty() || QLineF(kept.last(), point).length() >= tolerance)
            kept.append(point);
    }
    if (kept.size() > 1)
        kept.last() = points.last();
    return kept;
}

QVector<QPointF> inEvenSteps(const QVector<QPointF> &points, qreal step)
{
    QVector<QPointF> steps = points.mid(0, 1);
    for (const QPointF &point : points) {
        QLineF way(steps.last(), point);
        while (way.length() >= step) {
            way.setLength(step);
            steps.append(way.p2());
            way = QLineF(way.p2(), point);
        }
    }
    return steps + points.mid(qMax(1, points.size() - 1));
}

QPointF towards(const QPointF &from, const QPointF &to, qreal side)
{
    return { from.x() + (to.x() < from.x() ? -side : side),
        from.y() + (to.y() < from.y() ? -side : side) };
}

QRectF dragRect(const QPointF &from, const QPointF &to, Qt::KeyboardModifiers modifiers)
{
    QPointF corner = to;
    if (modifiers & Qt::ShiftModifier)
        corner = towards(from, to, qMax(qAbs(to.x() - from.x()), qAbs(to.y() - from.y())));
    const QPointF opposite = modifiers & Qt::AltModifier ? 2 * from - corner : from;
    return QRectF(opposite, corner).normalized();
}

} // namespace

QVector<QPointF> alignmentOffsets(const QVector<QRectF> &rects, Alignment alignment)
{
    QRectF all;
    for (const QRectF &rect : rects)
        all |= rect;
    QVector<QPointF> offsets;
    for (const QRectF &rect : rects)
        offsets.append(offsetTo(all, rect, alignment));
    return offsets;
}

QVector<QPointF> steadied(const QVector<QPointF> &points, qreal step)
{
    QVector<QPointF> steady = inEvenSteps(points, step);
    for (int round = 0; round < roundsOfSteadying; ++round) {
        const QVector<QPointF> before = steady;
        for (int i = 1; i + 1 < steady.size(); ++i)
            steady[i] = (before[i - 1] + 2 * before[i] + before[i + 1]) / 4;
    }
    return steady;
}

QPainterPath smoothedPath(const QVector<QPointF> &points, qreal tolerance)
{
    const QVector<QPointF> kept = thinnedOut(points, tolerance);
    if (kept.isEmpty())
        return {};
    QPainterPath path(kept.first());
    for (int i = 1; i + 1 < kept.size(); ++i)
        path.quadTo(kept[i], (kept[i] + kept[i + 1]) / 2);
    path.lineTo(kept.last());
    return path;
}

QPainterPath linePath(const QPointF &from, const QPointF &to, Qt::KeyboardModifiers modifiers)
{
    QLineF line(from, to);
    if (modifiers & Qt::ShiftModifier)
        line.setAngle(45.0 * qRound(line.angle() / 45.0));
    QPainterPath path(modifiers & Qt::AltModifier ? 2 * from - line.p2() : from);
    path.lineTo(line.p2());
    return path;
}

QPainterPath rectanglePath(const QPointF &from, const QPointF &to, Qt::KeyboardModifiers modifiers)
{
    QPainterPath path;
    path.addRect(dragRect(from, to, modifiers));
    return path;
}

QPainterPath ellipsePath(const QPointF &from, const QPointF &to, Qt::KeyboardModifiers modifiers)
{
    QPainterPath path;
    path.addEllipse(dragRect(from, to, modifiers));
    return path;
}

} // namespace Sketchpad
