// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRMediaDecoder_p.h"

#include "video/HRMediaDemuxer_p.h"

namespace Hintreels {

bool HRMediaDecoder::open(const AVStream *stream, const AVCodec *decoder)
{
    m_decoder.reset(avcodec_alloc_context3(decoder));
    return m_decoder && avcodec_parameters_to_context(m_decoder.get(), stream->codecpar) >= 0
        && avcodec_open2(m_decoder.get(), decoder, nullptr) >= 0;
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

void HRMediaDecoder::send(const AVPacket *packet)
{
    avcodec_send_packet(m_decoder.get(), packet);
}

void HRMediaDecoder::sendEnd()
{
    avcodec_send_packet(m_decoder.get(), nullptr);
}

void HRMediaDecoder::flush()
{
    avcodec_flush_buffers(m_decoder.get());
}

void HRMediaDecoder::close()
{
    m_picture.reset();
    m_decoder.reset();
}

double HRMediaDecoder::timeBase() const
{
    return quotient(m_decoder->time_base);
}

} // namespace Hintreels
