// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

QT_BEGIN_NAMESPACE
class QWidget;
class QWindow;
QT_END_NAMESPACE

namespace Hintreels {

/// Whether the application's windows are those of a Wayland compositor.
///
/// There, a popup has its place only beside the window it belongs to, and only from the moment it
/// appears; no window knows where on the screen it stands; and a pointer that has left the
/// application's windows is nowhere.
bool isOnWayland();

/// The window that a popup has to stand beside: that of the reference widget, else the active one.
/// @param reference may be null
QWindow *windowToStandBeside(const QWidget *reference);

// The following are for Wayland only. All positions are global ones, which hold only within a
// window and what stands beside it.

/// The room for a popup that belongs to a pointer. A window that fills its output (maximised, full
/// screen) is all there is. Elsewhere room ends only where the pointer has less of it inside the
/// window; without a window, nowhere.
QRect roomBesideWindow(const QWindow *window, const QPoint &pointer);

/// Where a popup goes: beside the pointer by an offset, and inside a window that fills its output,
/// or on the sides where the pointer has more room inside the window.
QPoint placeBesidePointer(
    const QWindow *window, const QPoint &pointer, const QSize &offset, const QSize &popup);

} // namespace Hintreels
