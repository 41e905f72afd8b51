// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "widgets/parts/HRPartKind_p.h"

namespace Hintreels {

/// The model's role under which hosts give headers and items keys of their own: from "HR" in ASCII.
constexpr int partKeyRole = 0x0100 + 0x4852;

/// A header's section: `people/Age` by its text, and `people/column2` by its place.
std::optional<HRPart> sectionAt(QWidget *widget, const QPoint &position);
QVector<HRPart> sections(QWidget *widget);
/// That of the view's current column, or row.
HRPart currentSection(QWidget *widget);

/// A cell or an item: in a table by its column, then by its row; in a list or a tree by the text of
/// its row, then by its column; in the end the view itself. The list of a combo box is one, too.
std::optional<HRPart> cellAt(QWidget *widget, const QPoint &position);

/// The view, and those of the items in its first column that carry a key of their own.
QVector<HRPart> cells(QWidget *widget);
HRPart currentCell(QWidget *widget);

} // namespace Hintreels
