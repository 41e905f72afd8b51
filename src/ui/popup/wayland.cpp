// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/wayland_p.h"

#include "ui/popup/popupGeometry_p.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

namespace Hintreels {

namespace {

/// Menus and lists know where they stand beside the window that they belong to.
const QWindow &outermost(const QWindow &window)
{
    const QWindow *outer = &window;
    while (outer->type() == Qt::Popup && outer->transientParent())
        outer = outer->transientParent();
    return *outer;
}

bool fillsOutput(const QWindow &window)
{
    return window.windowStates() & (Qt::WindowMaximized | Qt::WindowFullScreen);
}

} // namespace

bool isOnWayland()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

QWindow *windowToStandBeside(const QWidget *reference)
{
    const QWidget *window = reference ? reference->window() : QApplication::activeWindow();
    return window ? window->windowHandle() : nullptr;
}

QRect roomBesideWindow(const QWindow *window, const QPoint &pointer)
{
    if (!window)
        return everywhere();
    const QWindow &outer = outermost(*window);
    const QRect frame = outer.frameGeometry();
    return fillsOutput(outer) ? frame : openedWhereRoomier(frame, pointer);
}

QPoint placeBesidePointer(
    const QWindow *window, const QPoint &pointer, const QSize &offset, const QSize &popup)
{
    const QRect usual(pointer + QPoint(offset.width(), offset.height()), popup);
    if (!window)
        return usual.topLeft();
    const QWindow &outer = outermost(*window);
    const QRect frame = outer.frameGeometry();
    return fillsOutput(outer) ? movedInside(usual, frame).topLeft()
                              : onRoomierSides(pointer, offset, popup, frame);
}

} // namespace Hintreels
