// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QVector>

namespace Hintreels {

// All rectangles are in global coordinates, in pixels; screens may lie anywhere, also at negative
// ones.

/// Index of the screen that shares the largest area with @p area, the first of equal ones.
/// @return -1 where no screen shares any
int mostCoveredScreen(const QRect &area, const QVector<QRect> &screens);

/// Moves a rectangle inside the screen, without changing its size.
///
/// Top and left first, bottom and right last: a rectangle larger than the screen keeps its lower
/// right corner in sight.
QRect movedInside(const QRect &geometry, const QRect &screen);

/// The nearest position to which a window can be moved, and at which its edges can be computed.
QPoint withinReach(const QPoint &position);

/// Whether a position is inside an area widened by the margin on every side, edges included.
bool isNear(const QRect &area, const QSize &margin, const QPoint &position);

/// Where a popup goes whose content has changed its size.
struct HRContentFit
{
    QRect geometry;
    bool pushed = false; ///< whether the screen's edges had to push the content
};

/// Fits content of a size into the screen, beginning at the top left corner of the window's frame.
/// @param titleBar from the top of the window's inside to the top of its frame: zero or negative
HRContentFit fitContent(
    const QSize &content, const QPoint &framePosition, int titleBar, const QRect &screen);

/// An area that ends nowhere within reach.
QRect everywhere();

/// A window's area that ends only on the sides where a point has less room inside the window, below
/// and to the right where it has as much.
QRect openedWhereRoomier(const QRect &window, const QPoint &point);

/// Where a popup begins that stands beside a point, off by an offset in both directions, on the
/// sides where the point has more room inside a window; below and to the right where it has as
/// much.
QPoint onRoomierSides(
    const QPoint &point, const QSize &offset, const QSize &popup, const QRect &window);

} // namespace Hintreels
