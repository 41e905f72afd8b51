// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>

namespace Sketchpad {

/// The icon drawn in icons/NAME.svg, with its lines in a colour that suits the theme.
/// @return a null icon where there is no such file
QIcon themedIcon(const QString &name, const QColor &color);

} // namespace Sketchpad
