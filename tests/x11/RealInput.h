// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QString>

/// Pointer and keyboard of the X server, as a person uses them, and what that person sees.
///
/// All positions are global ones of the application. Each operation returns when the server has
/// taken the input; the application sees it once events are processed.
namespace RealInput {

/// Where the X server shows what the application knows under other coordinates.
struct Place
{
    QPoint global; ///< a point for the application,
    QPoint onScreen; ///< and the pixel of the X server that shows it
    int scale = 1; ///< pixels of the X server for one of the application
};

/// The place of all positions that follow; on X11 the application knows those of the server.
void setPlace(const Place &place);

void movePointer(const QPoint &position);
void press();
void release();
void click(const QPoint &position);
void clickRight(const QPoint &position);
void type(const QString &letters);

/// Presses and releases a key with its modifiers, as in "ctrl+k".
void key(const QString &stroke);

/// Turns the wheel down by one step.
void scroll();

/// What the X server shows now.
QImage screenshot();

/// The smallest rectangle around all pixels of a colour, in pixels of the X server.
QRect boundsOf(const QColor &color);

/// Whether every pixel of an area on the screen has this colour.
bool shows(const QRect &area, const QColor &color);

/// How many windows the X server knows.
int serverWindowCount();

} // namespace RealInput
