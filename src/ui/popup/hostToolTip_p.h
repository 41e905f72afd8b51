// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRect>

QT_BEGIN_NAMESPACE
class QObject;
class QPoint;
class QWidget;
QT_END_NAMESPACE

namespace Hintreels {

/// Whether an object is a tool tip that Qt shows, as QToolTip::showText() does.
bool isHostToolTip(const QObject &object);

/// Whether a tool tip that is about to appear tells of a part that a popup stands beside.
///
/// Qt does not tell whose it is. It appears at its part or at the pointer, so it is the part's if
/// it is near that, and the pointer is over no other. All areas are global.
bool isToolTipOf(
    const QRect &part, const QRect &toolTip, const QRect &popup, const QPoint &pointer);

/// Keeps a tool tip that is about to appear from the screen.
void keepHidden(QWidget &toolTip);

/// Hides the tool tips that Qt shows now, at once.
void hideHostToolTips();

} // namespace Hintreels
