// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "tools/ZoomTool.h"

#include "drawing/Canvas.h"

#include <QApplication>
#include <QGraphicsSceneMouseEvent>

namespace Sketchpad {

ZoomTool::ZoomTool(Canvas &canvas)
    : m_canvas(canvas)
    , m_frame(new QRubberBand(QRubberBand::Rectangle, canvas.viewport()))
{
}

bool ZoomTool::press(const QGraphicsSceneMouseEvent &event)
{
    if (event.button() == Qt::LeftButton) {
        m_from = toViewport(event);
        m_frame->setGeometry(QRect(m_from, QSize()));
        m_frame->show();
    }
    return true;
}

void ZoomTool::drag(const QGraphicsSceneMouseEvent &event)
{
    if (m_frame->isVisible())
        m_frame->setGeometry(QRect(m_from, toViewport(event)).normalized());
}

void ZoomTool::release(const QGraphicsSceneMouseEvent &event)
{
    if (!cancel())
        return;
    const QPoint to = toViewport(event);
    if ((to - m_from).manhattanLength() >= QApplication::startDragDistance())
        m_canvas.zoomTo(m_canvas.mapToScene(QRect(m_from, to).normalized()).boundingRect());
    else if (event.modifiers() & Qt::AltModifier)
        m_canvas.zoomOut();
    else
        m_canvas.zoomIn();
}

bool ZoomTool::cancel()
{
    const bool framing = m_frame->isVisible();
    m_frame->hide();
    return framing;
}

QPoint ZoomTool::toViewport(const QGraphicsSceneMouseEvent &event) const
{
    return m_canvas.mapFromScene(event.scenePos());
}

} // namespace Sketchpad
