// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/Tool.h"

#include <QList>
#include <QPointF>

QT_BEGIN_NAMESPACE
class QGraphicsItem;
QT_END_NAMESPACE

namespace Sketchpad {

class Drawing;

/// Removes every item that it touches between press and release, in one step.
class EraserTool : public Tool
{
public:
    explicit EraserTool(Drawing &drawing);

    bool press(const QGraphicsSceneMouseEvent &event) override;
    void drag(const QGraphicsSceneMouseEvent &event) override;
    void release(const QGraphicsSceneMouseEvent &event) override;
    bool cancel() override;

private:
    void eraseBetween(const QPointF &from, const QPointF &to);
    void showTouched();

    Drawing &m_drawing;
    bool m_isErasing = false;
    QList<QGraphicsItem *> m_touched; // hidden until release
};

} // namespace Sketchpad
