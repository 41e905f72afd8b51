// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace Hintreels {

/// What stands where something was left out.
constexpr QChar ellipsis(0x2026);

/// A text of at most @p longest UTF-16 units: itself, or its beginning with an ellipsis.
///
/// What a reader takes for one character stays whole, marks, flags and joined emoji included; where
/// not even the first one fits, the ellipsis stands alone. Costs no more for a text of any length.
/// @param longest 1 or more
QString cutText(const QString &text, int longest);

} // namespace Hintreels
