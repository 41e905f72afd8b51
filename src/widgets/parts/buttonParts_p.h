// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "widgets/parts/HRPartKind_p.h"

namespace Hintreels {

/// A standard button of a dialog, called as in QDialogButtonBox::StandardButton: `Save`.
std::optional<HRPart> dialogButtonAt(QWidget *widget, const QPoint &position);

/// Any other button.
std::optional<HRPart> buttonAt(QWidget *widget, const QPoint &position);

/// A label, which stands for its buddy where it has no name of its own.
std::optional<HRPart> labelAt(QWidget *widget, const QPoint &position);

} // namespace Hintreels
