// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "video/HRVideoFrame.h"
#include "video/colorScaler_p.h"

namespace Hintreels {

/// Converts 8-bit 4:2:0 pictures of even height straight to 32 bits, and only those bands of rows
/// in which they differ from the one before: most of a screen recording stands still.
///
/// Lock-free; one thread at a time.
class HRDirectConverter
{
public:
    HRDirectConverter() = default;
    Q_DISABLE_COPY(HRDirectConverter)

    /// Gets ready for pictures of @p shape and @p colors; false on failure.
    bool prepare(const HRPictureShape &shape, const HRPictureColors &colors);

    /// Where @p target holds what the last call wrote, it is told what is new in it.
    /// @return false where the picture could not be converted
    bool convert(const AVFrame *picture, bool holdsLast, HRVideoFrame *target);

    /// Lets the last picture go.
    void close();

private:
    bool convertBand(const AVFrame *picture, int top, HRVideoFrame *target);
    bool isLikeLast(const AVFrame *picture, int top) const;

    QSize m_band;
    HRFFmpegHandle<SwsContext> m_scaler; // for one band
    HRFFmpegHandle<AVFrame> m_last; // without pixels where there is none
};

} // namespace Hintreels
