// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/Tool.h"

#include <QPainterPath>
#include <QPointF>

namespace Sketchpad {

class Drawing;
class ShapeItem;

/// Draws what lies between two points: a line, a rectangle or an ellipse.
class ShapeTool : public Tool
{
public:
    using PathMaker
        = QPainterPath (*)(const QPointF &from, const QPointF &to, Qt::KeyboardModifiers modifiers);

    /// @param text what undo calls the step
    /// @param isFilled whether shapes get the fill colour
    ShapeTool(Drawing &drawing, PathMaker pathMaker, const QString &text, bool isFilled);

    bool press(const QGraphicsSceneMouseEvent &event) override;
    void drag(const QGraphicsSceneMouseEvent &event) override;
    void release(const QGraphicsSceneMouseEvent &event) override;
    bool cancel() override;

private:
    Drawing &m_drawing;
    const PathMaker m_pathMaker;
    const QString m_text;
    const bool m_isFilled;
    ShapeItem *m_shape = nullptr; // the drawing's, while the button is held
    QPointF m_from;
};

} // namespace Sketchpad
