// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QString>

/// Pointer and keyboard of the X server, as a person uses them, and what that person sees.
///
/// All positions are global. Each operation returns when the server has taken the input; the
/// application sees it once events are processed.
namespace RealInput {

void movePointer(const QPoint &position);
void press();
void release();
void click(const QPoint &position);
void type(const QString &letters);

/// What the screen shows now.
QImage screenshot();

/// Whether every pixel of an area on the screen has this colour.
bool shows(const QRect &area, const QColor &color);

/// How many windows the X server knows.
int serverWindowCount();

} // namespace RealInput
