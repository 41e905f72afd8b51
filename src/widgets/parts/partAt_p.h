// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "widgets/parts/HRPart_p.h"

#include <QVector>

namespace Hintreels {

/// The part under the pointer.
///
/// What has no name, such as the buttons of a spin box, belongs to what it lies in, up to the page
/// or the window, which are left out.
/// @param hovered the innermost widget there, and what the part's `widget` is then
/// @param position in global coordinates
HRPart partAt(QWidget *hovered, const QPoint &position);

/// The part that has the keyboard: the active entry of a menu, the current tab, cell or item, the
/// section over the current column, or the widget. Names are found as partAt() does.
/// @param focused the widget that has it, and what the part's `widget` is then
HRPart partInFocus(QWidget *focused);

/// A widget as a whole.
HRPart wholePart(QWidget *widget);

/// All parts of a widget, without those of the widgets in it.
QVector<HRPart> partsOf(QWidget *widget);

/// Whether a widget serves another as a piece of it, as the editor does a spin box.
bool isPiece(const QWidget *widget);

} // namespace Hintreels
