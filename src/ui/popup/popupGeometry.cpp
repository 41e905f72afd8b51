// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/popupGeometry_p.h"

#include <QWidget>

namespace Hintreels {

namespace {

/// One direction of a fit: first and last pixel, and whether an edge of the screen pushed.
struct Span
{
    int first;
    int last;
    bool pushed;
};

Span fitSpan(int start, int length, int shift, int screenFirst, int screenLast)
{
    const int last = start + length - 1 + qMax(0, screenFirst - start);
    const int excess = qMax(0, last - screenLast);
    return { qMax(screenFirst, start) + shift - excess, qMin(last, screenLast),
        screenFirst > start || excess > 0 };
}

bool isRoomierBefore(int position, int first, int last)
{
    return position - first > last - position;
}

int onRoomierSide(int position, int offset, int length, int first, int last)
{
    return isRoomierBefore(position, first, last) ? position - offset - length : position + offset;
}

} // namespace

int mostCoveredScreen(const QRect &area, const QVector<QRect> &screens)
{
    int best = -1;
    qint64 bestArea = 0;
    for (int i = 0; i < screens.size(); ++i) {
        const QRect shared = screens.at(i).intersected(area);
        const qint64 sharedArea = qint64(shared.width()) * shared.height();
        if (shared.isEmpty() || sharedArea <= bestArea)
            continue;
        best = i;
        bestArea = sharedArea;
    }
    return best;
}

QRect movedInside(const QRect &geometry, const QRect &screen)
{
    QRect moved = geometry;
    if (screen.top() > moved.top())
        moved.moveTop(screen.top());
    if (screen.left() > moved.left())
        moved.moveLeft(screen.left());
    if (screen.bottom() < moved.bottom())
        moved.moveBottom(screen.bottom());
    if (screen.right() < moved.right())
        moved.moveRight(screen.right());
    return moved;
}

QPoint withinReach(const QPoint &position)
{
    const auto bounded = [](int value) { return qBound(-QWIDGETSIZE_MAX, value, QWIDGETSIZE_MAX); };
    return { bounded(position.x()), bounded(position.y()) };
}

bool isNear(const QRect &area, const QSize &margin, const QPoint &position)
{
    // Margins may be as large as an int can be, which then means everywhere.
    const auto isWithin = [](int value, int first, int last, qint64 around) {
        return value >= first - around && value <= last + around;
    };
    return isWithin(position.x(), area.left(), area.right(), margin.width())
        && isWithin(position.y(), area.top(), area.bottom(), margin.height());
}

HRContentFit fitContent(
    const QSize &content, const QPoint &framePosition, int titleBar, const QRect &screen)
{
    const Span x = fitSpan(framePosition.x(), content.width(), 0, screen.left(), screen.right());
    const Span y
        = fitSpan(framePosition.y(), content.height(), titleBar, screen.top(), screen.bottom());
    return { QRect(QPoint(x.first, y.first), QPoint(x.last, y.last)), x.pushed || y.pushed };
}

QRect everywhere()
{
    return { QPoint(-QWIDGETSIZE_MAX, -QWIDGETSIZE_MAX), QPoint(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX) };
}

QRect openedWhereRoomier(const QRect &window, const QPoint &point)
{
    QRect area = everywhere();
    if (isRoomierBefore(point.x(), window.left(), window.right()))
        area.setRight(window.right());
    else
        area.setLeft(window.left());
    if (isRoomierBefore(point.y(), window.top(), window.bottom()))
        area.setBottom(window.bottom());
    else
        area.setTop(window.top());
    return area;
}

QPoint onRoomierSides(
    const QPoint &point, const QSize &offset, const QSize &popup, const QRect &window)
{
    return { onRoomierSide(point.x(), offset.width(), popup.width(), window.left(), window.right()),
        onRoomierSide(point.y(), offset.height(), popup.height(), window.top(), window.bottom()) };
}

} // namespace Hintreels
