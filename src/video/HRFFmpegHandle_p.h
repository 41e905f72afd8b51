// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/imgutils.h>
#include <libavutil/mem.h>
#include <libswscale/swscale.h>
}

#include <cstdint>
#include <memory>

namespace Hintreels {

struct HRFFmpegFree
{
    void operator()(AVFormatContext *input) const { avformat_close_input(&input); }
    void operator()(AVCodecContext *decoder) const { avcodec_free_context(&decoder); }
    void operator()(AVPacket *packet) const { av_packet_free(&packet); }
    void operator()(AVFrame *picture) const { av_frame_free(&picture); }
    void operator()(SwsContext *scaler) const { sws_freeContext(scaler); }
    void operator()(uint8_t *buffer) const { av_free(buffer); }
};

/// The owner of an FFmpeg object, from the line that makes it.
template <typename T>
using HRFFmpegHandle = std::unique_ptr<T, HRFFmpegFree>;

} // namespace Hintreels
