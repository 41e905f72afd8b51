// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "video/HRSwings_p.h"
#include "video/HRVideoFrame.h"
#include "video/pictureLight_p.h"

namespace Hintreels {

/// Counts the flashes of a clip, picture by picture.
///
/// By WCAG 2.2, success criterion 2.3.1, "general flash and red flash thresholds": a general flash
/// is a pair of opposing changes in relative luminance by 10 % or more of the maximum where the
/// darker one is below 0.80; a red flash a pair of opposing changes by more than 0.2 in the CIE
/// 1976 diagram, to or from a colour of which red makes up 0.8 or more. Both count where they take
/// up a quarter of any rectangle of 341 x 256 pixels at one time, three of each in any second are
/// allowed.
///
/// Places are told apart as far as a grid of 32 columns goes. Each picture is taken to be shown 480
/// pixels wide, which is as wide as clips are made for: one that is shown smaller is safer still.
/// Lock-free; one thread at a time.
class HRFlashMeter
{
public:
    static constexpr int mostAllowed = 3; ///< flashes in any one second

    /// Takes the next picture, of 32 bits a pixel; a null one is passed over. What did not change
    /// since the one before costs nothing where the picture knows its damage.
    /// @param seconds when it is shown; no earlier than the one before
    void add(const HRVideoFrame &picture, double seconds);

    /// The greatest number of flashes in any one second, of what was added so far.
    int most() const { return m_most; }
    /// Whether there are more of them than anybody should be shown unasked.
    bool isFlashing() const { return m_most > mostAllowed; }

private:
    struct Place
    {
        QRect pixels;
        HRSwings luminance;
        HRSwings red;
    };

    void divide(const QSize &picture);
    bool follow(const HRLight &light, double seconds, Place *place);
    bool isWide(int flashes, HRSwings Place::*kind, double since) const;

    QSize m_size; // of the pictures, in pixels
    int m_columns = 0;
    int m_rows = 0;
    std::vector<Place> m_places; // row by row
    qint64 m_last = 0; // picture, by QImage::cacheKey()
    int m_most = 0;
};

} // namespace Hintreels
