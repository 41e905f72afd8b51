// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QRect>

class QWidget;

namespace Hintreels {

/// The part of a screen that a popup may use.
///
/// The screen is the one that shows most of the reference widget; without such a widget the one at
/// the position, then the primary one.
/// @param reference may be null
/// @param position global
QRect availableGeometry(const QWidget *reference, const QPoint &position);

/// What can be seen of a widget inside its window, in global coordinates; null where nothing can.
/// @param widget may be null
QRect visibleArea(const QWidget *widget);

} // namespace Hintreels
