// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "video/HRDirectConverter_p.h"
#include "video/HRVideoFrame.h"
#include "video/colorScaler_p.h"

namespace Hintreels {

/// Converts decoded pictures of any format and size to 32-bit RGB of one size.
///
/// The result is what a bicubic conversion to packed RGB24 gives, with opaque alpha. Where
/// converting straight to 32 bits gives the same pixels, it takes that shorter road; where the
/// picture has them already, the result shares its memory. Lock-free; one thread at a time.
class HRPictureConverter
{
public:
    HRPictureConverter() = default;
    Q_DISABLE_COPY(HRPictureConverter)

    // Opening, in this order; each is false on failure.

    /// Makes room for pictures of @p size, which the results have.
    bool allocate(const QSize &size);
    /// Gets ready for pictures of @p shape and @p colors.
    bool prepare(const HRPictureShape &shape, const HRPictureColors &colors = {});

    /// Whether pictures are converted by the matrix and the range that they name themselves.
    void setColorsByFile(bool byFile) { m_colorsByFile = byFile; }
    /// The converted picture; a null one where it cannot be allocated or converted.
    HRVideoFrame convert(const AVFrame *picture);
    void close();

private:
    bool takeTarget();
    bool has32Bits(const AVFrame *picture) const;
    bool isDirect(const HRPictureShape &shape) const;
    void copy(const AVFrame *picture, HRVideoFrame *target);
    bool convertByRgb24(const AVFrame *picture, HRVideoFrame *target);

    QSize m_size; // of the results
    HRPictureShape m_source; // that the scaler is ready for, as are the colours
    HRPictureColors m_colors;
    int m_rgbStride = 0; // bytes
    HRFFmpegHandle<uint8_t> m_rgb;
    HRFFmpegHandle<SwsContext> m_scaler;
    HRVideoFrame m_target; // the last result
    bool m_isDirect = false;
    bool m_colorsByFile = false;
    HRDirectConverter m_direct;
};

} // namespace Hintreels
