// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "video/HRFFmpegHandle_p.h"

#include <QSize>
#include <QTransform>

namespace Hintreels {

/// What takes a picture of @p size as it is coded to how it is to be seen, its top left corner at
/// the origin.
///
/// Pixels that are not square make it larger in one direction, by at most four times: whoever says
/// more than that is not believed. Of a matrix only quarter turns and mirroring count.
/// @param pixel width to height of a pixel; square where it says nothing
/// @param matrix FFmpeg's display matrix of nine numbers; may be null
QTransform uprightTransform(const QSize &size, AVRational pixel, const int32_t *matrix);

/// The same by what the file says of a stream.
QTransform uprightTransform(const QSize &size, const AVStream *stream);

/// The size of a picture of @p size that @p transform has taken upright.
QSize uprightSize(const QSize &size, const QTransform &transform);

} // namespace Hintreels
