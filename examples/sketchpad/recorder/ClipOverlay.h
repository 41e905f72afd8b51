// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointF>
#include <QStringList>

class QImage;
class QPainter;

namespace Sketchpad {

/// Paints onto a grabbed picture what a grab does not show: the pointer, its button, and keys.
class ClipOverlay
{
public:
    /// @param pointer in pixels of the picture
    /// @param keys what is held on the keyboard, one cap each
    void paint(QImage &picture, const QPointF &pointer, bool isPressed, const QStringList &keys);

private:
    void paintButton(QPainter &painter, const QPointF &pointer, bool isPressed);

    double m_glow = 0; // 1 while the button is down, then fading
};

} // namespace Sketchpad
