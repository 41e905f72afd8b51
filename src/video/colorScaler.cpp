// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/colorScaler_p.h"

namespace Hintreels {

namespace {

void setColors(SwsContext *scaler, const HRPictureColors &colors)
{
    int *from = nullptr;
    int *to = nullptr;
    int fromFull = 0;
    int toFull = 0;
    int brightness = 0;
    int contrast = 0;
    int saturation = 0;
    // Fails where there is no conversion between colour models.
    if (sws_getColorspaceDetails(
            scaler, &from, &fromFull, &to, &toFull, &brightness, &contrast, &saturation)
        < 0)
        return;
    const int *matrix
        = colors.matrix == AVCOL_SPC_UNSPECIFIED ? from : sws_getCoefficients(colors.matrix);
    if (colors.range != AVCOL_RANGE_UNSPECIFIED)
        fromFull = colors.range == AVCOL_RANGE_JPEG;
    sws_setColorspaceDetails(
        scaler, matrix, fromFull, to, toFull, brightness, contrast, saturation);
}

} // namespace

HRFFmpegHandle<SwsContext> makeScaler(
    const HRPictureShape &source, const HRPictureShape &target, const HRPictureColors &colors)
{
    HRFFmpegHandle<SwsContext> scaler(sws_getCachedContext(nullptr, source.size.width(),
        source.size.height(), source.format, target.size.width(), target.size.height(),
        target.format, SWS_BICUBIC, nullptr, nullptr, nullptr));
    if (scaler && colors != HRPictureColors())
        setColors(scaler.get(), colors);
    return scaler;
}

} // namespace Hintreels
