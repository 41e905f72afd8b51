// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/Tool.h"

namespace Sketchpad {

class Drawing;

/// Places a text, or edits the one under the pointer.
class TextTool : public Tool
{
public:
    explicit TextTool(Drawing &drawing);

    QCursor cursor() const override { return Qt::IBeamCursor; }
    bool press(const QGraphicsSceneMouseEvent &event) override;

private:
    Drawing &m_drawing;
};

/// Fills the item under the pointer, or else the sheet.
class FillTool : public Tool
{
public:
    explicit FillTool(Drawing &drawing);

    QCursor cursor() const override { return Qt::PointingHandCursor; }
    bool press(const QGraphicsSceneMouseEvent &event) override;

private:
    Drawing &m_drawing;
};

} // namespace Sketchpad
