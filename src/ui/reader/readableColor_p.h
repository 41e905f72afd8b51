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
/// A colour that has the contrast comes back unchanged; another is mixed with black or with white,
/// whichever contrasts more.
/// @param contrast at least; 4.5 is the guidelines' level AA for text, 7 is AAA, and 3 is AA for
///     what is no text
QColor readableColor(const QColor &wanted, const QColor &background, qreal contrast = 4.5);

} // namespace Hintreels
