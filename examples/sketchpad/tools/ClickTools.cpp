// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "tools/ClickTools.h"

#include "drawing/Drawing.h"

#include <QGraphicsSceneMouseEvent>

namespace Sketchpad {

TextTool::TextTool(Drawing &drawing)
    : m_drawing(drawing)
{
}

bool TextTool::press(const QGraphicsSceneMouseEvent &event)
{
    if (event.button() == Qt::LeftButton)
        m_drawing.editTextAt(event.scenePos());
    return true;
}

FillTool::FillTool(Drawing &drawing)
    : m_drawing(drawing)
{
}

bool FillTool::press(const QGraphicsSceneMouseEvent &event)
{
    if (event.button() == Qt::LeftButton)
        m_drawing.fillAt(event.scenePos());
    return true;
}

} // namespace Sketchpad
