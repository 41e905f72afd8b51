// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QKeySequence>
#include <QPointF>
#include <QStringList>
#include <QWidget>

#include <optional>

namespace Sketchpad {

/// The hands on a recorded window: one pointer, its left button, the wheel and the keyboard.
///
/// Events enter where those of the window system do, so the application cannot tell the difference.
class ClipStage
{
public:
    /// @param window shown, and outliving the stage; holds the graphics view named "canvas"
    explicit ClipStage(QWidget &window);

    /// Where a point of the drawing lies in the window.
    QPointF fromCanvas(const QPointF &point) const;
    /// The middle of a widget, or of the button of an action, by object name.
    std::optional<QPointF> middleOf(const QString &name) const;

    QPointF pointer() const { return m_pointer; }
    bool isPressed() const { return m_isPressed; }
    Qt::KeyboardModifiers modifiers() const { return m_modifiers; }

    void moveTo(const QPointF &position);
    void press();
    void release();
    void doubleClick();
    void turnWheel(int steps);
    void hold(Qt::KeyboardModifier modifier);
    void free(Qt::KeyboardModifier modifier);
    void pressKeys(const QKeySequence &keys);
    void type(const QChar &letter);
    /// Sets the color of a color button; false where there is no such button or color.
    bool setColor(const QString &button, const QColor &color);

private:
    QWidget *widgetNamed(const QString &name) const;

    QWidget &m_window;
    QPointF m_pointer;
    bool m_isPressed = false;
    Qt::KeyboardModifiers m_modifiers;
};

} // namespace Sketchpad
