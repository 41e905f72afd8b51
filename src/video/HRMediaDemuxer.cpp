// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRMediaDemuxer_p.h"

#include <QFileInfo>

extern "C" {
#include <libavutil/opt.h>
}

namespace Hintreels {

namespace {

// Every format here is one file that names no other. FFmpeg also obeys playlists (hls, dash,
// concat, imf), name patterns (image2), session descriptions (sdp) and companions (vobsub, mlv),
// whatever the file is called; none of those may ever come in. The formats without pictures are
// here for a better message: such a file opens, and has no video stream.
constexpr char singleFileFormats[]
    = "mov,mp4,m4a,3gp,3g2,mj2,matroska,webm,avi,flv,live_flv,ogg,asf,asf_o,mpeg,mpegts,mpegvideo,"
      "m4v,h261,h263,h264,hevc,av1,obu,ivf,vc1,vc1test,cavsvideo,avs2,avs3,dirac,dnxhd,mjpeg,"
      "mjpeg_2000,mpjpeg,gif,apng,flic,yuv4mpegpipe,nut,mxf,gxf,dv,nsv,nuv,rm,wtv,pva,roq,smk,bink,"
      "swf,filmstrip,qcp,wav,w64,aiff,au,caf,flac,mp3,aac,ac3,eac3,dts,tta,wv,ape,amr,amrnb,amrwb,"
      "mpc,mpc8,tak,voc,oma,spdif,truehd,mlp";

// Formats without packets of their own are read until a picture is complete: in a file of zeros
// without end, and what is collected is then gone through at once, deaf to being asked to stop. No
// picture of a clip takes as much as this.
constexpr qint64 longestRead = 64'000'000; // bytes

} // namespace

double quotient(AVRational ratio)
{
    return ratio.den == 0 ? 0.0 : av_q2d(ratio);
}

HRMediaDemuxer::HRMediaDemuxer(ShouldStop shouldStop)
    : m_shouldStop(std::move(shouldStop))
{
}

bool HRMediaDemuxer::open(const QString &path)
{
    close();
    // A pipe would block until somebody writes to it, and so do files of the kernel, which are
    // regular and have no size.
    const QFileInfo file(path);
    if (!file.isFile() || file.size() == 0)
        return false;
    AVFormatContext *input = avformat_alloc_context();
    if (!input)
        return false;
    input->interrupt_callback = { &HRMediaDemuxer::interrupt, this };
    av_opt_set(input, "format_whitelist", singleFileFormats, 0);
    av_opt_set(input, "protocol_whitelist", "file", 0);
    // The protocol stands in front, so that a path such as "http:x.mp4" stays a path. On failure
    // the call frees the context and nulls the pointer.
    const QByteArray url = "file:" + path.toUtf8();
    const int result = avformat_open_input(&input, url.constData(), nullptr, nullptr);
    m_input.reset(input);
    return result >= 0;
}

bool HRMediaDemuxer::findStreams()
{
    startReading();
    return avformat_find_stream_info(m_input.get(), nullptr) >= 0;
}

bool HRMediaDemuxer::chooseVideoStream()
{
    const int index = av_find_best_stream(m_input.get(), AVMEDIA_TYPE_VIDEO, -1, -1, &m_decoder, 0);
    if (index < 0)
        return false;
    m_stream = m_input->streams[index];
    return true;
}

bool HRMediaDemuxer::readPacket(AVPacket *packet)
{
    while (!m_shouldStop()) {
        startReading();
        if (av_read_frame(m_input.get(), packet) < 0)
            return false;
        if (packet->stream_index == m_stream->index)
            return true;
        av_packet_unref(packet);
    }
    return false;
}

void HRMediaDemuxer::seek(qint64 target, int flags)
{
    av_seek_frame(m_input.get(), m_stream->index, target, flags);
}

void HRMediaDemuxer::close()
{
    m_input.reset();
    m_stream = nullptr;
    m_decoder = nullptr;
}

double HRMediaDemuxer::duration() const
{
    if (m_stream->duration != AV_NOPTS_VALUE)
        return quotient(m_stream->time_base) * double(m_stream->duration);
    if (m_input->duration != AV_NOPTS_VALUE)
        return double(m_input->duration) / AV_TIME_BASE;
    return 0.0;
}

double HRMediaDemuxer::frameRate() const
{
    return quotient(m_stream->r_frame_rate);
}

void HRMediaDemuxer::startReading()
{
    m_readBefore = m_input->pb->bytes_read;
}

bool HRMediaDemuxer::readsTooMuch() const
{
    return m_input && m_input->pb->bytes_read - m_readBefore > longestRead;
}

int HRMediaDemuxer::interrupt(void *opaque)
{
    const auto *demuxer = static_cast<HRMediaDemuxer *>(opaque);
    return demuxer->m_shouldStop() || demuxer->readsTooMuch() ? 1 : 0;
}

} // namespace Hintreels
