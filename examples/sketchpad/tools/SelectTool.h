// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/Tool.h"

#include <QHash>
#include <QPointF>

QT_BEGIN_NAMESPACE
class QGraphicsItem;
QT_END_NAMESPACE

namespace Sketchpad {

class Drawing;

/// Leaves selecting and moving to the items, and records where they went.
class SelectTool : public Tool
{
public:
    explicit SelectTool(Drawing &drawing);

    QCursor cursor() const override { return Qt::ArrowCursor; }
    bool press(const QGraphicsSceneMouseEvent &event) override;
    void release(const QGraphicsSceneMouseEvent &event) override;
    bool cancel() override;

private:
    Drawing &m_drawing;
    QHash<QGraphicsItem *, QPointF> m_before;
};

} // namespace Sketchpad
