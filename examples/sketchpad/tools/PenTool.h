// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/Tool.h"

#include <QPointF>
#include <QVector>

namespace Sketchpad {

class Drawing;
class ShapeItem;

/// Draws a free line, which is smoothed on release.
class PenTool : public Tool
{
public:
    explicit PenTool(Drawing &drawing);

    bool press(const QGraphicsSceneMouseEvent &event) override;
    void drag(const QGraphicsSceneMouseEvent &event) override;
    void release(const QGraphicsSceneMouseEvent &event) override;
    bool cancel() override;

private:
    Drawing &m_drawing;
    ShapeItem *m_stroke = nullptr; // the drawing's, while the button is held
    QVector<QPointF> m_points;
};

} // namespace Sketchpad
