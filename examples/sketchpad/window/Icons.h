// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>

QT_BEGIN_NAMESPACE
class QPalette;
QT_END_NAMESPACE

namespace Sketchpad {

/// The icon drawn in icons/NAME.svg, with its lines in the palette's colours for buttons.
/// @return a null icon where there is no such file
QIcon themedIcon(const QString &name, const QPalette &palette);

} // namespace Sketchpad
