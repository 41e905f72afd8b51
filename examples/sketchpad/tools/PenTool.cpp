// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "tools/PenTool.h"

#include "drawing/Drawing.h"

#include <QCoreApplication>
#include <QGraphicsSceneMouseEvent>

namespace Sketchpad {

namespace {

// A third of the waves that an unsteady hand makes, in units of the drawing.
constexpr qreal step = 3.0;

} // namespace

PenTool::PenTool(Drawing &drawing)
    : m_drawing(drawing)
{
}

bool PenTool::press(const QGraphicsSceneMouseEvent &event)
{
    cancel();
    if (event.button() == Qt::LeftButton) {
        m_stroke = new ShapeItem(m_drawing.style(), Qt::transparent);
        m_drawing.place(m_stroke);
        m_points = { event.scenePos() };
    }
    return true;
}

void PenTool::drag(const QGraphicsSceneMouseEvent &event)
{
    if (!m_stroke)
        return;
    if (event.modifiers() & Qt::ShiftModifier)
        m_points.resize(1);
    m_points.append(event.scenePos());
    QPainterPath path;
    path.addPolygon(QPolygonF(m_points));
    m_stroke->setPath(path);
}

void PenTool::release(const QGraphicsSceneMouseEvent &)
{
    if (!m_stroke)
        return;
    if (m_points.size() < 2) {
        cancel();
        return;
    }
    m_stroke->setPath(smoothedPath(steadied(m_points, step), 0));
    m_drawing.add(m_stroke, QCoreApplication::translate("Tools", "Stroke"));
    m_stroke = nullptr;
}

bool PenTool::cancel()
{
    const bool drawing = m_stroke;
    delete m_stroke;
    m_stroke = nullptr;
    return drawing;
}

} // namespace Sketchpad
