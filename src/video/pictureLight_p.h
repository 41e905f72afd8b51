// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QRect>

namespace Hintreels {

/// What of a colour counts where it flashes.
struct HRLight
{
    float luminance = 0; ///< relative: 0 for black, 1 for white
    float distanceToRed = 0; ///< of the chromaticity to that of pure red, in the CIE 1976 diagram
    bool isSaturatedRed = false; ///< red makes up four fifths of it or more
};

/// The mean light of a part of a picture, of 8 by 8 of its pixels at most.
/// @param picture of 32 bits a pixel, in sRGB
/// @param part inside the picture, and not empty
HRLight lightOf(const QImage &picture, const QRect &part);

} // namespace Hintreels
