// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRMediaDecoder_p.h"

#include "video/HRMediaDemuxer_p.h"

namespace Hintreels {

bool HRMediaDecoder::open(const AVStream *stream, const AVCodec *decoder, qint64 mostPixels)
{
    m_decoder.reset(avcodec_alloc_context3(decoder));
    if (!m_decoder || avcodec_parameters_to_context(m_decoder.get(), stream->codecpar) < 0)
        return false;
    m_decoder->max_pixels = mostPixels;
    return avcodec_open2(m_decoder.get(), decoder, nullptr) >= 0;
}

bool HRMediaDecoder::allocatePicture()
{
    m_picture.reset(av_frame_alloc());
    return m_picture != nullptr;
}

HRMediaDecoder::Result HRMediaDecoder::receive()
{
    const int result = avcodec_receive_frame(m_decoder.get(), m_picture.get());
    if (result >= 0)
        return pictureReady;
    if (result == AVERROR(EAGAIN))
        return packetNeeded;
    return result == AVERROR_EOF ? allDecoded : pictureBroken;
}

bool HRMediaDecoder::send(const AVPacket *packet)
{
    return avcodec_send_packet(m_decoder.get(), packet) >= 0;
}

void HRMediaDecoder::sendEnd()
{
    avcodec_send_packet(m_decoder.get(), nullptr);
    m_draining = true;
}

void HRMediaDecoder::flush()
{
    avcodec_flush_buffers(m_decoder.get());
    m_draining = false;
}

void HRMediaDecoder::close()
{
    m_picture.reset();
    m_decoder.reset();
    m_draining = false;
}

double HRMediaDecoder::timeBase() const
{
    return quotient(m_decoder->time_base);
}

} // namespace Hintreels
