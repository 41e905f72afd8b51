// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "widgets/parts/HRPartKind_p.h"

namespace Hintreels {

/// A menu's entry at a position, else its active one.
std::optional<HRPart> menuEntryAt(QWidget *widget, const QPoint &position);
/// Also of a menu that is not open; without separators and what is hidden.
QVector<HRPart> menuEntries(QWidget *widget);

/// The same for menu bars.
std::optional<HRPart> menuBarEntryAt(QWidget *widget, const QPoint &position);
QVector<HRPart> menuBarEntries(QWidget *widget);

/// A tool button, which stands for its default action.
std::optional<HRPart> toolButtonAt(QWidget *widget, const QPoint &position);

} // namespace Hintreels
