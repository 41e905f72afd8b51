// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

// Where a popup stands.

#include "ui/popup/HRWidgetPrivate_p.h"

#include "context/setting_p.h"
#include "ui/popup/popupFit_p.h"
#include "ui/popup/popupGeometry_p.h"
#include "ui/popup/popupScreen_p.h"
#include "ui/popup/wayland_p.h"

namespace Hintreels {

QRect HRWidgetPrivate::screen() const
{
    if (standsBeside())
        return beside->screen();
    if (isOnWayland())
        return reserved ? everywhere() : roomBesideWindow(windowToStandBeside(reference), hovered);
    return availableGeometry(reference, q->window()->pos());
}

bool HRWidgetPrivate::standsBeside() const
{
    return beside && !reserved && q->isWindow();
}

QSize HRWidgetPrivate::pointerOffset() const
{
    return setting(settings(), tooltipOffsetKey, QSize(35, 30));
}

/// Where a window goes that has this frame.
QPoint HRWidgetPrivate::placeFor(const QRect &frame)
{
    if (standsBeside())
        return beside->topLeftFor(frame.size(), pointerOffset());
    if (isOnWayland() && !reserved)
        return placeBesidePointer(
            windowToStandBeside(reference), hovered, pointerOffset(), frame.size());
    return movedInside(frame, screen()).topLeft();
}

/// Takes the place for a hint; a popup beside its part waits for the hint's size.
void HRWidgetPrivate::takePlace(const QPoint &pos)
{
    beside.reset();
    const QSize offset = pointerOffset();
    hovered = withinReach(pos) - withinReach(QPoint(offset.width(), offset.height()));
    if (setting(settings(), placementKey, int(placementAtPointer)) == placementBeside) {
        beside.emplace().start(reference, area, hovered);
        return;
    }
    q->move(withinReach(pos));
    if (q->isVisible())
        q->reposition();
}

/// Goes to where it will stand before it grows, or it would cover its part for a moment.
void HRWidgetPrivate::makeRoom()
{
    if (!q->isVisible() || !standsBeside())
        return;
    const QRect frame = q->frameGeometry();
    const QSize grown = frame.size() + sizeAroundContent(*q) - q->size();
    q->move(placeFor(QRect(frame.topLeft(), grown.expandedTo(frame.size()))));
}

} // namespace Hintreels
