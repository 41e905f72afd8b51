// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "video/HRFFmpegHandle_p.h"

#include <QString>

#include <functional>

/// Decodes a clip with FFmpeg's libraries on one thread, and scales each picture straight to 32
/// bits in one buffer: what everything else is compared with.
class OneThread
{
public:
    /// Opens the file and finds its streams.
    explicit OneThread(const QString &path);

    /// Decodes and scales pictures until @p wanted are done, or the clip ends.
    /// @return how many there were
    int decode(int wanted);

    /// Scales the picture decoded last once more.
    void scale();

private:
    bool receive();

    Hintreels::HRFFmpegHandle<AVFormatContext> m_input;
    Hintreels::HRFFmpegHandle<AVCodecContext> m_decoder;
    Hintreels::HRFFmpegHandle<AVPacket> m_packet;
    Hintreels::HRFFmpegHandle<AVFrame> m_picture;
    Hintreels::HRFFmpegHandle<SwsContext> m_scaler;
    Hintreels::HRFFmpegHandle<uint8_t> m_pixels;
    int m_stream = -1;
};
