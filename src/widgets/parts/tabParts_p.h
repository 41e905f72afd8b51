// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "widgets/parts/HRPartKind_p.h"

namespace Hintreels {

/// A tab, which goes by its data where that is a text, by its page, or by the dock or sub-window
/// that it stands for.
std::optional<HRPart> tabAt(QWidget *widget, const QPoint &position);
QVector<HRPart> tabs(QWidget *widget);
HRPart currentTab(QWidget *widget);

/// The button over a page of a QToolBox, which goes by that page.
std::optional<HRPart> toolBoxTabAt(QWidget *widget, const QPoint &position);

/// The page of a QToolBox that a button opens; null for any other widget.
const QWidget *toolBoxPageOf(QWidget *button);

} // namespace Hintreels
