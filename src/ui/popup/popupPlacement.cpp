// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/popupPlacement_p.h"

#include <QVector>

#include <algorithm>

namespace Hintreels {

namespace {

// Near enough to be seen as one with its part, and as far away as to leave the part's edge free.
constexpr int gap = 4; // px

// What an arrow of the usual size covers, from its tip on.
constexpr QSize arrow(16, 20); // px

/// What a popup stands beside, and which of its edges it is aligned with.
struct Anchor
{
    QRect area;
    QRect line;
    int gap;
};

using Areas = QVector<QRect>;
using Sides = QVector<HRSide>;

bool isVertical(HRSide side)
{
    return side == HRSide::below || side == HRSide::above;
}

/// Moves a length inside the bounds; the beginning of what is too long stays in sight.
int slid(int start, int length, int first, int last)
{
    return qMax(first, qMin(start, last - length + 1));
}

/// A popup goes beside a column, which it would cover above or below the part; else below or above.
Sides sidesOf(const HRPlace &place, bool isColumn)
{
    const HRSide next = place.mirrored ? HRSide::left : HRSide::right;
    const HRSide last = place.mirrored ? HRSide::right : HRSide::left;
    Sides sides = isColumn ? Sides{ next, last, HRSide::below, HRSide::above }
                           : Sides{ HRSide::below, HRSide::above, next, last };
    if (place.side) {
        sides.removeOne(*place.side);
        sides.prepend(*place.side);
    }
    return sides;
}

QRect areaBeside(const Anchor &anchor, HRSide side, const HRPlace &place, const QSize &popup)
{
    QRect area(anchor.line.topLeft(), popup);
    if (place.mirrored)
        area.moveRight(anchor.line.right());
    if (side == HRSide::below)
        area.moveTop(anchor.area.bottom() + 1 + anchor.gap);
    if (side == HRSide::above)
        area.moveBottom(anchor.area.top() - 1 - anchor.gap);
    if (side == HRSide::right)
        area.moveLeft(anchor.area.right() + 1 + anchor.gap);
    if (side == HRSide::left)
        area.moveRight(anchor.area.left() - 1 - anchor.gap);
    const QRect &screen = place.screen;
    if (isVertical(side))
        area.moveLeft(slid(area.left(), area.width(), screen.left(), screen.right()));
    else
        area.moveTop(slid(area.top(), area.height(), screen.top(), screen.bottom()));
    return area;
}

std::optional<HRPlaced> findRoom(const Anchor &anchor, const Sides &sides, const HRPlace &place,
    const Areas &kept, const QSize &popup)
{
    for (const HRSide side : sides) {
        const QRect area = areaBeside(anchor, side, place, popup);
        const bool covers = std::any_of(
            kept.begin(), kept.end(), [&](const QRect &other) { return other.intersects(area); });
        if (place.screen.contains(area) && !covers)
            return HRPlaced{ area.topLeft(), side };
    }
    return std::nullopt;
}

int widthOutside(const QRect &area, const QRect &screen)
{
    const QRect inside = area & screen;
    return area.width() - inside.width() + area.height() - inside.height();
}

HRPlaced leastOutside(
    const Anchor &anchor, const Sides &sides, const HRPlace &place, const QSize &popup)
{
    const auto outside = [&](HRSide side) {
        return widthOutside(areaBeside(anchor, side, place, popup), place.screen);
    };
    const HRSide side = *std::min_element(
        sides.begin(), sides.end(), [&](HRSide a, HRSide b) { return outside(a) < outside(b); });
    return { areaBeside(anchor, side, place, popup).topLeft(), side };
}

/// With what the pointer covers, where it points at the part.
QRect withPointer(const HRPlace &place)
{
    const bool isInside = place.part.contains(place.pointer);
    return isInside ? place.part | QRect(place.pointer, arrow) : place.part;
}

/// Hosts may set any offset, and show a hint at any position.
Anchor anchorAtPointer(const HRPlace &place)
{
    const QPoint pointer(slid(place.pointer.x(), 1, place.screen.left(), place.screen.right()),
        slid(place.pointer.y(), 1, place.screen.top(), place.screen.bottom()));
    const QSize distance = place.offset.expandedTo(arrow).boundedTo(place.screen.size());
    const QPoint offset(distance.width(), distance.height());
    const int edge = pointer.x() + (place.mirrored ? -offset.x() : offset.x());
    return { QRect(pointer - offset, pointer + offset - QPoint(1, 1)),
        QRect(edge, pointer.y(), 1, 1), 0 };
}

} // namespace

HRPlaced placedBeside(const HRPlace &place, const QSize &popup)
{
    const QRect pointer(place.pointer, arrow);
    if (!place.part.isEmpty()) {
        const bool isMenu = place.menus.contains(place.part);
        const QRect part = withPointer(place);
        const Anchor whole{ isMenu ? place.menus | part : part, place.part, gap };
        const Sides sides = sidesOf(place, isMenu || place.inColumn);
        if (const auto room
            = findRoom(whole, sides, place, { place.part, place.menus, pointer }, popup))
            return *room;
        const Anchor alone{ part, place.part, gap };
        if (const auto room = findRoom(alone, sides, place, { place.part, pointer }, popup))
            return *room;
    }
    const Anchor anchor = anchorAtPointer(place);
    const Sides sides = sidesOf(place, false);
    const auto room = findRoom(anchor, sides, place, {}, popup);
    return room ? *room : leastOutside(anchor, sides, place, popup);
}

bool isBetween(const QRect &from, const QRect &to, const QPoint &position)
{
    // The way is a rectangle that turns from one into the other as t goes from 0 to 1. Each of its
    // edges has the position on the inner side for a part of that time.
    qreal first = 0;
    qreal last = 1;
    const auto limit = [&](int begin, int end) {
        if (begin < 0 && end < 0)
            last = -1;
        else if (begin < 0)
            first = qMax(first, qreal(begin) / (begin - end));
        else if (end < 0)
            last = qMin(last, qreal(begin) / (begin - end));
    };
    limit(position.x() - from.left(), position.x() - to.left());
    limit(from.right() - position.x(), to.right() - position.x());
    limit(position.y() - from.top(), position.y() - to.top());
    limit(from.bottom() - position.y(), to.bottom() - position.y());
    return first <= last;
}

} // namespace Hintreels
