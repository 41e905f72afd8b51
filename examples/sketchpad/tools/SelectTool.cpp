// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "tools/SelectTool.h"

#include "drawing/Drawing.h"

#include <QGraphicsSceneMouseEvent>

namespace Sketchpad {

SelectTool::SelectTool(Drawing &drawing)
    : m_drawing(drawing)
{
}

bool SelectTool::press(const QGraphicsSceneMouseEvent &event)
{
    m_before.clear();
    if (event.button() == Qt::LeftButton) {
        for (QGraphicsItem *item : m_drawing.items())
            m_before.insert(item, item->pos());
    }
    return false;
}

void SelectTool::release(const QGraphicsSceneMouseEvent &)
{
    m_drawing.recordMoves(m_before);
    m_before.clear();
}

bool SelectTool::cancel()
{
    bool moved = false;
    for (auto it = m_before.begin(); it != m_before.end(); ++it) {
        moved = moved || it.key()->pos() != it.value();
        it.key()->setPos(it.value());
    }
    m_before.clear();
    if (QGraphicsItem *grabber = m_drawing.mouseGrabberItem())
        grabber->ungrabMouse();
    return moved;
}

} // namespace Sketchpad
