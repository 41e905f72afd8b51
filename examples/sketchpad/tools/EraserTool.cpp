// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "tools/EraserTool.h"

#include "drawing/Drawing.h"

#include <QCoreApplication>
#include <QGraphicsSceneMouseEvent>

namespace Sketchpad {

namespace {

constexpr qreal eraserWidth = 6.0;

} // namespace

EraserTool::EraserTool(Drawing &drawing)
    : m_drawing(drawing)
{
}

bool EraserTool::press(const QGraphicsSceneMouseEvent &event)
{
    if (event.button() == Qt::LeftButton) {
        m_isErasing = true;
        eraseBetween(event.scenePos(), event.scenePos());
    }
    return true;
}

void EraserTool::drag(const QGraphicsSceneMouseEvent &event)
{
    if (m_isErasing)
        eraseBetween(event.lastScenePos(), event.scenePos());
}

void EraserTool::release(const QGraphicsSceneMouseEvent &)
{
    showTouched();
    m_drawing.remove(m_touched, QCoreApplication::translate("Tools", "Erase"));
    m_touched.clear();
    m_isErasing = false;
}

bool EraserTool::cancel()
{
    const bool erasing = m_isErasing;
    showTouched();
    m_touched.clear();
    m_isErasing = false;
    return erasing;
}

void EraserTool::eraseBetween(const QPointF &from, const QPointF &to)
{
    QPainterPath way(from);
    // A stroke needs a length, however small, to have an outline.
    way.lineTo(to + QPointF(0.01, 0));
    QPainterPathStroker stroker;
    stroker.setWidth(eraserWidth);
    stroker.setCapStyle(Qt::RoundCap);
    for (QGraphicsItem *item : m_drawing.items(stroker.createStroke(way))) {
        item->hide();
        m_touched.append(item);
    }
}

void EraserTool::showTouched()
{
    for (QGraphicsItem *item : qAsConst(m_touched))
        item->show();
}

} // namespace Sketchpad
