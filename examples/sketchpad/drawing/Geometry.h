// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QVector>

namespace Sketchpad {

enum class Alignment
{
    Left,
    Center,
    Right,
    Top,
    Middle,
    Bottom
};

/// How far each rectangle moves to be aligned with all of them together.
QVector<QPointF> alignmentOffsets(const QVector<QRectF> &rects, Alignment alignment);

/// Points in even steps along a stroke, without the tremble of the hand; its ends stay.
/// @param step in units of the drawing: what trembles within three steps goes, what bends over ten
/// stays
QVector<QPointF> steadied(const QVector<QPointF> &points, qreal step);

/// A curve through the middles of the way between neighbouring points, so that the tremble of the
/// hand goes and the first and the last point stay. Points closer than @p tolerance are one.
QPainterPath smoothedPath(const QVector<QPointF> &points, qreal tolerance);

/// A line from one point to another. Shift turns it to the nearest multiple of 45 degrees, Alt
/// makes @p from its middle.
QPainterPath linePath(const QPointF &from, const QPointF &to, Qt::KeyboardModifiers modifiers);

/// A rectangle with these corners. Shift makes it a square, Alt makes @p from its centre.
QPainterPath rectanglePath(const QPointF &from, const QPointF &to, Qt::KeyboardModifiers modifiers);

/// The ellipse that fills the rectangle of rectanglePath().
QPainterPath ellipsePath(const QPointF &from, const QPointF &to, Qt::KeyboardModifiers modifiers);

} // namespace Sketchpad
