// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "hints/SketchpadHints.h"
#include "window/MainWindow.h"

#include <Hintreels/HRContext>

#include <QAction>
#include <QtTest>

namespace Sketchpad {

inline HRContext configuredContext()
{
    HRContext context;
    SketchpadHints::configure(context);
    return context;
}

// The window with its hints, and a hand that draws on the sheet in the sheet's coordinates.
struct SketchpadFixture
{
    SketchpadFixture()
        : context(configuredContext())
        , hints(context, { STANDARD_PACKAGES_DIR, SKETCHPAD_PACKAGES_DIR }, window)
        , canvas(*window.findChild<Canvas *>())
        , drawing(window.drawing())
    {
        window.show();
        QApplication::setActiveWindow(&window);
        canvas.setFocus();
    }

    void choose(const char *name) { window.action(name)->trigger(); }

    QPoint at(const QPointF &point) const { return canvas.mapFromScene(point); }

    void press(const QPointF &point, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mousePress(canvas.viewport(), Qt::LeftButton, modifiers, at(point));
    }

    // With the button held, which QTest::mouseMove() leaves out.
    void moveTo(const QPointF &point)
    {
        QMouseEvent move(QEvent::MouseMove, at(point), canvas.viewport()->mapToGlobal(at(point)),
            Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(canvas.viewport(), &move);
    }

    void release(const QPointF &point, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mouseRelease(canvas.viewport(), Qt::LeftButton, modifiers, at(point));
    }

    void drag(const QPointF &from, const QPointF &to)
    {
        press(from);
        moveTo((from + to) / 2);
        moveTo(to);
        release(to);
    }

    void click(const QPointF &point, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        press(point, modifiers);
        release(point, modifiers);
    }

    void type(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&canvas, key, modifiers);
    }

    void addRectangle(const QRectF &rect)
    {
        choose("toolRectangle");
        drag(rect.topLeft(), rect.bottomRight());
    }

    int itemCount() const { return drawing.items().size(); }
    int stepCount() const { return drawing.history().count(); }

    MainWindow window;
    HRContext context;
    SketchpadHints hints;
    Canvas &canvas;
    Drawing &drawing;
};

} // namespace Sketchpad
