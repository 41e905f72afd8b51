// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "tools/ShapeTool.h"

#include "drawing/Drawing.h"

#include <QGraphicsSceneMouseEvent>

namespace Sketchpad {

ShapeTool::ShapeTool(Drawing &drawing, PathMaker pathMaker, const QString &text, bool isFilled)
    : m_drawing(drawing)
    , m_pathMaker(pathMaker)
    , m_text(text)
    , m_isFilled(isFilled)
{
}

bool ShapeTool::press(const QGraphicsSceneMouseEvent &event)
{
    cancel();
    if (event.button() == Qt::LeftButton) {
        const Style &style = m_drawing.style();
        m_shape = new ShapeItem(style, m_isFilled ? style.fill : QColor(Qt::transparent));
        m_drawing.place(m_shape);
        m_from = event.scenePos();
    }
    return true;
}

void ShapeTool::drag(const QGraphicsSceneMouseEvent &event)
{
    if (m_shape)
        m_shape->setPath(m_pathMaker(m_from, event.scenePos(), event.modifiers()));
}

void ShapeTool::release(const QGraphicsSceneMouseEvent &event)
{
    if (!m_shape)
        return;
    drag(event);
    if (event.scenePos() == m_from) {
        cancel();
        return;
    }
    m_drawing.add(m_shape, m_text);
    m_shape = nullptr;
}

bool ShapeTool::cancel()
{
    const bool drawing = m_shape;
    delete m_shape;
    m_shape = nullptr;
    return drawing;
}

} // namespace Sketchpad
