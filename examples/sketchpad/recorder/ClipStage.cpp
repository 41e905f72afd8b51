// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "recorder/ClipStage.h"

#include "window/ColorButton.h"

#include <QAction>
#include <QGraphicsView>
#include <QToolBar>
#include <QWindow>
#include <QtTest>

namespace Sketchpad {

namespace {

// What one notch of a common wheel sends, in eighths of a degree.
const int wheelStep = 120;

Qt::Key keyOf(Qt::KeyboardModifier modifier)
{
    switch (modifier) {
    case Qt::ShiftModifier:
        return Qt::Key_Shift;
    case Qt::ControlModifier:
        return Qt::Key_Control;
    default:
        return Qt::Key_Alt;
    }
}

} // namespace

ClipStage::ClipStage(QWidget &window)
    : m_window(window)
    , m_pointer(window.rect().center())
{
}

QPointF ClipStage::fromCanvas(const QPointF &point) const
{
    const auto *canvas = m_window.findChild<QGraphicsView *>("canvas");
    const QPoint onViewport = canvas->mapFromScene(point);
    return canvas->viewport()->mapTo(&m_window, onViewport);
}

QWidget *ClipStage::widgetNamed(const QString &name) const
{
    auto *action = m_window.findChild<QAction *>(name);
    const auto toolBars = m_window.findChildren<QToolBar *>();
    for (QToolBar *toolBar : toolBars) {
        if (QWidget *button = action ? toolBar->widgetForAction(action) : nullptr)
            return button;
    }
    return m_window.findChild<QWidget *>(name);
}

std::optional<QPointF> ClipStage::middleOf(const QString &name) const
{
    const QWidget *widget = widgetNamed(name);
    if (!widget || !widget->isVisible())
        return std::nullopt;
    return widget->mapTo(&m_window, widget->rect().center());
}

void ClipStage::moveTo(const QPointF &position)
{
    m_pointer = position;
    QTest::mouseEvent(
        QTest::MouseMove, m_window.windowHandle(), Qt::NoButton, m_modifiers, m_pointer.toPoint());
}

void ClipStage::press()
{
    m_isPressed = true;
    QTest::mousePress(m_window.windowHandle(), Qt::LeftButton, m_modifiers, m_pointer.toPoint());
}

void ClipStage::release()
{
    m_isPressed = false;
    QTest::mouseRelease(m_window.windowHandle(), Qt::LeftButton, m_modifiers, m_pointer.toPoint());
}

void ClipStage::doubleClick()
{
    QTest::mouseDClick(m_window.windowHandle(), Qt::LeftButton, m_modifiers, m_pointer.toPoint());
}

void ClipStage::turnWheel(int steps)
{
    const QPoint global = m_window.mapToGlobal(m_pointer.toPoint());
    QWidget *target = m_window.childAt(m_pointer.toPoint());
    QWheelEvent event(target->mapFromGlobal(global), global, {}, { 0, steps * wheelStep },
        Qt::NoButton, m_modifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(target, &event);
}

void ClipStage::hold(Qt::KeyboardModifier modifier)
{
    m_modifiers |= modifier;
    QTest::keyPress(m_window.windowHandle(), keyOf(modifier), m_modifiers);
}

void ClipStage::free(Qt::KeyboardModifier modifier)
{
    m_modifiers &= ~Qt::KeyboardModifiers(modifier);
    QTest::keyRelease(m_window.windowHandle(), keyOf(modifier), m_modifiers);
}

void ClipStage::pressKeys(const QKeySequence &keys)
{
    const int combination = keys[0];
    QTest::keyClick(m_window.windowHandle(), Qt::Key(combination & ~Qt::KeyboardModifierMask),
        Qt::KeyboardModifiers(combination & Qt::KeyboardModifierMask));
}

void ClipStage::type(const QChar &letter)
{
    QTest::sendKeyEvent(QTest::Click, m_window.windowHandle(), Qt::Key(letter.toUpper().unicode()),
        letter, Qt::NoModifier);
}

bool ClipStage::setColor(const QString &button, const QColor &color)
{
    auto *found = m_window.findChild<ColorButton *>(button);
    if (!found || !color.isValid())
        return false;
    found->setColor(color);
    return true;
}

} // namespace Sketchpad
