// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "OneThread.h"

#include "Measuring.h"

using namespace Hintreels;

OneThread::OneThread(const QString &path)
    : m_packet(av_packet_alloc())
    , m_picture(av_frame_alloc())
{
    AVFormatContext *input = nullptr;
    if (avformat_open_input(&input, qPrintable(path), nullptr, nullptr) < 0)
        cannotMeasure("cannot open " + path);
    m_input.reset(input);
    avformat_find_stream_info(input, nullptr);
    const AVCodec *codec = nullptr;
    m_stream = av_find_best_stream(input, AVMEDIA_TYPE_VIDEO, -1, -1, &codec, 0);
    m_decoder.reset(avcodec_alloc_context3(codec));
    avcodec_parameters_to_context(m_decoder.get(), input->streams[m_stream]->codecpar);
    avcodec_open2(m_decoder.get(), codec, nullptr);
    const int width = m_decoder->width;
    const int height = m_decoder->height;
    m_scaler.reset(sws_getCachedContext(nullptr, width, height, m_decoder->pix_fmt, width, height,
        AV_PIX_FMT_RGB32, SWS_BICUBIC, nullptr, nullptr, nullptr));
    m_pixels.reset(static_cast<uint8_t *>(av_malloc(size_t(width) * height * 4 + 256)));
}

int OneThread::decode(int wanted)
{
    int count = 0;
    for (; count < wanted && receive(); ++count)
        scale();
    return count;
}

void OneThread::scale()
{
    uint8_t *planes[4] = { m_pixels.get() };
    const int strides[4] = { m_decoder->width * 4 };
    sws_scale(m_scaler.get(), m_picture->data, m_picture->linesize, 0, m_picture->height, planes,
        strides);
}

bool OneThread::receive()
{
    int result = avcodec_receive_frame(m_decoder.get(), m_picture.get());
    while (result == AVERROR(EAGAIN)) {
        const bool atEnd = av_read_frame(m_input.get(), m_packet.get()) < 0;
        if (atEnd || m_packet->stream_index == m_stream)
            avcodec_send_packet(m_decoder.get(), atEnd ? nullptr : m_packet.get());
        av_packet_unref(m_packet.get());
        result = avcodec_receive_frame(m_decoder.get(), m_picture.get());
    }
    return result >= 0;
}
