// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/Tool.h"

#include <QPoint>
#include <QRubberBand>

namespace Sketchpad {

class Canvas;

/// Zooms in at a click, out with Alt, and to the frame that a drag makes.
class ZoomTool : public Tool
{
public:
    explicit ZoomTool(Canvas &canvas);

    bool press(const QGraphicsSceneMouseEvent &event) override;
    void drag(const QGraphicsSceneMouseEvent &event) override;
    void release(const QGraphicsSceneMouseEvent &event) override;
    bool cancel() override;

private:
    QPoint toViewport(const QGraphicsSceneMouseEvent &event) const;

    Canvas &m_canvas;
    QRubberBand *m_frame; // the canvas's child; visible while the button is held
    QPoint m_from;
};

} // namespace Sketchpad
