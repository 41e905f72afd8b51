// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "drawing/WelcomeDrawing.h"

#include "drawing/Drawing.h"

#include <QCoreApplication>

namespace Sketchpad {

namespace {

void addShape(Drawing &drawing, const QPainterPath &path, const Style &style)
{
    auto *item = new ShapeItem(style, style.fill);
    item->setPath(path);
    drawing.place(item);
}

QPainterPath rectangle(const QRectF &rect)
{
    return rectanglePath(rect.topLeft(), rect.bottomRight(), Qt::NoModifier);
}

QPainterPath ellipse(const QRectF &rect)
{
    return ellipsePath(rect.topLeft(), rect.bottomRight(), Qt::NoModifier);
}

// A smooth skyline, and the sheet's lower corners.
QPainterPath hill(const QVector<QPointF> &skyline)
{
    QPainterPath path = smoothedPath(skyline, 1);
    path.lineTo(Drawing::sheet().bottomRight());
    path.lineTo(Drawing::sheet().bottomLeft());
    path.closeSubpath();
    return path;
}

QPainterPath cloud(const QPointF &at)
{
    return ellipse({ at, QSizeF(70, 44) })
        .united(ellipse({ at + QPointF(32, -26), QSizeF(74, 68) }))
        .united(ellipse({ at + QPointF(80, -6), QSizeF(70, 50) }))
        .simplified();
}

QPainterPath polygon(const QVector<QPointF> &points)
{
    QPainterPath path;
    path.addPolygon(QPolygonF(points));
    path.closeSubpath();
    return path;
}

const QColor ink(0x22, 0x31, 0x4f);

void addSky(Drawing &drawing)
{
    addShape(drawing, ellipse({ 640, 70, 110, 110 }),
        { QColor(0xe9, 0xa2, 0x3b), QColor(0xff, 0xd1, 0x66), 3 });
    for (const QPointF &at : { QPointF(110, 110), QPointF(400, 70) })
        addShape(drawing, cloud(at), { QColor(0x9f, 0xb6, 0xcf), Qt::white, 2.5 });
}

void addHills(Drawing &drawing)
{
    addShape(drawing,
        hill({ { 0, 420 }, { 120, 330 }, { 280, 300 }, { 460, 380 }, { 640, 300 }, { 780, 290 },
            { 900, 360 } }),
        { QColor(0x5b, 0x94, 0x6e), QColor(0x9c, 0xcf, 0xa3), 3 });
    addShape(drawing, hill({ { 0, 510 }, { 180, 440 }, { 420, 470 }, { 650, 500 }, { 900, 440 } }),
        { QColor(0x3f, 0x7d, 0x55), QColor(0x6f, 0xb3, 0x7f), 3 });
}

void addHouse(Drawing &drawing)
{
    addShape(drawing, rectangle({ 250, 370, 150, 110 }), { ink, QColor(0xff, 0xf3, 0xdc), 3 });
    addShape(drawing, polygon({ { 230, 372 }, { 325, 300 }, { 420, 372 } }),
        { ink, QColor(0xd9, 0x6c, 0x5b), 3 });
    addShape(drawing, rectangle({ 270, 415, 36, 65 }), { ink, QColor(0x8a, 0x5a, 0x44), 3 });
    addShape(drawing, rectangle({ 330, 400, 46, 38 }), { ink, QColor(0xbf, 0xe3, 0xf5), 3 });
}

void addTree(Drawing &drawing, const QPointF &foot, qreal size)
{
    addShape(drawing, rectangle({ foot.x() - 6, foot.y() - size, 12, size }),
        { ink, QColor(0x8a, 0x5a, 0x44), 3 });
    addShape(drawing,
        ellipse({ foot.x() - size * 0.6, foot.y() - size * 2.3, size * 1.2, size * 1.5 }),
        { QColor(0x2f, 0x6b, 0x48), QColor(0x57, 0xa0, 0x6c), 3 });
}

} // namespace

void drawWelcome(Drawing &drawing)
{
    drawing.setPaper(QColor(0xe8, 0xf3, 0xfb));
    addSky(drawing);
    addHills(drawing);
    addHouse(drawing);
    addTree(drawing, { 520, 475 }, 60);
    addTree(drawing, { 590, 490 }, 45);
    auto *text = new TextItem({ ink, {}, 1 });
    text->setPlainText(
        QCoreApplication::translate("Welcome", "Rest the pointer on a tool to see its hint"));
    text->setPos(230, 190);
    drawing.place(text);
}

} // namespace Sketchpad
