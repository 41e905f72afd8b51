// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "widgets/parts/HRPartKind_p.h"

namespace Hintreels {

/// A tab, which goes by its data where that is a text, by its page, or by the dock that it stands
/// for.
std::optional<HRPart> tabAt(QWidget *widget, const QPoint &position);
QVector<HRPart> tabs(QWidget *widget);
HRPart currentTab(QWidget *widget);

} // namespace Hintreels
