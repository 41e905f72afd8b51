// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "video/HRFFmpegHandle_p.h"

#include <QByteArray>
#include <QString>

namespace Hintreels {

/// Silences FFmpeg's own log, once per process: a level that the host sets later stays.
void silenceFFmpeg();

/// Opens a local file as media, the one way in for clips, their sizes and their captions.
///
/// Only a regular file is opened that has a size, and only with FFmpeg silenced. Any thread.
/// @param formats names of FFmpeg's demuxers, with commas between them; no other is let in
/// @param interrupt asked during every long operation, also after opening
/// @return null where the file cannot be opened
HRFFmpegHandle<AVFormatContext> openMediaFile(
    const QString &path, const QByteArray &formats, const AVIOInterruptCB &interrupt = {});

} // namespace Hintreels
