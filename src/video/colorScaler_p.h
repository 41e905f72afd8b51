// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "video/HRFFmpegHandle_p.h"

#include <QSize>

namespace Hintreels {

/// How the colours of a picture are coded; what is unspecified is as FFmpeg's scaler takes it.
struct HRPictureColors
{
    AVColorSpace matrix = AVCOL_SPC_UNSPECIFIED;
    AVColorRange range = AVCOL_RANGE_UNSPECIFIED;

    bool operator!=(const HRPictureColors &other) const
    {
        return matrix != other.matrix || range != other.range;
    }
};

/// A picture's size and format.
struct HRPictureShape
{
    QSize size;
    AVPixelFormat format = AV_PIX_FMT_NONE;
};

/// A bicubic scaler that understands the colours of @p source as FFmpeg's own scaler filter does;
/// null where there is none.
HRFFmpegHandle<SwsContext> makeScaler(
    const HRPictureShape &source, const HRPictureShape &target, const HRPictureColors &colors);

} // namespace Hintreels
