// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <Qt>

namespace Hintreels {

/// The cursor shape that QML means by a name such as "PointingHandCursor"; case matters.
/// @return the arrow for names that UI files have no use for
Qt::CursorShape cursorShapeNamed(const QString &name);

} // namespace Hintreels
