// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <optional>

namespace Hintreels {

/// A side of what a popup stands beside.
enum class HRSide
{
    below,
    above,
    right,
    left
};

/// What a popup has to be placed by. All of it is in global coordinates, in pixels.
struct HRPlace
{
    QRect part; ///< that the hint belongs to; null for none
    QRect menus; ///< around the open menus and lists; null for none
    QPoint pointer;
    QSize offset; ///< from the pointer to a popup that has nothing else to stand beside
    QRect screen;
    bool mirrored = false; ///< for a layout from right to left
    std::optional<HRSide> side = {}; ///< on which the popup stands already
    bool inColumn = false; ///< whether the part's neighbours are above and below it
};

/// A place that was found.
struct HRPlaced
{
    QPoint topLeft;
    HRSide side;
};

/// Finds the place for a popup of a size: beside the part on a side that has room for it, covering
/// neither part nor menus nor pointer.
///
/// The hint of a menu's entry stands beside the menu as a whole, and that of a part in a column
/// beside the column. Where no side of the part has
/// room, the popup stands beside the pointer; where that has no room either it sticks out of the
/// screen, on the side where least of it does. A side on which it stands already is tried first.
HRPlaced placedBeside(const HRPlace &place, const QSize &popup);

/// Whether a position is on a straight way from a point of one area to a point of the other.
bool isBetween(const QRect &from, const QRect &to, const QPoint &position);

} // namespace Hintreels
