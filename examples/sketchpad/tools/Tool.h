// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCursor>

QT_BEGIN_NAMESPACE
class QGraphicsSceneMouseEvent;
QT_END_NAMESPACE

namespace Sketchpad {

/// What the mouse does on the canvas.
class Tool
{
public:
    virtual ~Tool() = default;

    virtual QCursor cursor() const { return Qt::CrossCursor; }

    /// @return false to leave the press to the items, which select and move themselves
    virtual bool press(const QGraphicsSceneMouseEvent &event) = 0;
    /// The pointer moved, perhaps without a press before.
    virtual void drag(const QGraphicsSceneMouseEvent &) { }
    virtual void release(const QGraphicsSceneMouseEvent &) { }
    /// Drops what was begun; false where there was nothing to drop.
    virtual bool cancel() { return false; }
};

} // namespace Sketchpad
