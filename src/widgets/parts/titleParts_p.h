// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "widgets/parts/HRPartKind_p.h"

namespace Hintreels {

// The title of a widget is a part of it that goes by the widget's own name.

std::optional<HRPart> groupBoxAt(QWidget *widget, const QPoint &position);
std::optional<HRPart> dockAt(QWidget *widget, const QPoint &position);

/// A window in a QMdiArea, which goes by the widget in it as well.
std::optional<HRPart> subWindowAt(QWidget *widget, const QPoint &position);

} // namespace Hintreels
