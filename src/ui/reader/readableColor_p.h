// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>

namespace Hintreels {

/// How far two colours are apart for the eye, from 1 (equal) to 21 (black and white): the contrast
/// ratio of the Web Content Accessibility Guidelines 2. Transparency is not looked at.
qreal contrastRatio(const QColor &a, const QColor &b);

/// The colour nearest to @p wanted in which text can be read on @p background.
///
/// That is a contrast of 4.5, the guidelines' level AA for text. A colour that has it comes back
/// unchanged; another is mixed with black or with white, whichever contrasts more.
QColor readableColor(const QColor &wanted, const QColor &background);

} // namespace Hintreels
