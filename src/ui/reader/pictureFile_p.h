// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSize>
#include <QString>

namespace Hintreels {

/// The size of a picture file in pixels; empty for one that is not to be shown.
///
/// Only a regular file with a size is opened. Of a picture in pixels the header is read, and one of
/// more than 64 million pixels is refused: it would take 256 MB. An SVG drawing is looked through
/// before Qt reads it, see isHarmlessSvg(). On any thread.
QSize pictureSize(const QString &path);

} // namespace Hintreels
