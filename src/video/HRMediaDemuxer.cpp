// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRMediaDemuxer_p.h"

#include "video/mediaFile_p.h"

#include <QRegularExpression>

#include <algorithm>
#include <vector>

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
      "mpc,mpc8,tak,voc,oma,spdif,truehd,mlp,bmp_pipe,cri_pipe,dds_pipe,dpx_pipe,exr_pipe,"
      "gem_pipe,gif_pipe,hdr_pipe,j2k_pipe,jpeg_pipe,jpegls_pipe,jpegxl_pipe,pam_pipe,pbm_pipe,"
      "pcx_pipe,pfm_pipe,pgm_pipe,pgmyuv_pipe,pgx_pipe,phm_pipe,photocd_pipe,pictor_pipe,png_pipe,"
      "ppm_pipe,psd_pipe,qdraw_pipe,qoi_pipe,sgi_pipe,sunrast_pipe,tiff_pipe,vbn_pipe,webp_pipe,"
      "xbm_pipe,xpm_pipe,xwd_pipe";

// What is read for one picture is then gone through at once, deaf to being asked to stop. No
// picture of a clip takes as much as this. Formats that are a bare stream have no packets and are
// read until a parser finds a picture complete, in a file of zeros to its end; looking for one
// takes longer than decoding it.
constexpr qint64 longestPacket = 64'000'000; // bytes
constexpr qint64 longestSearch = 16'000'000; // bytes

/// FFmpeg knows a larger JPEG by its name alone, as one of image2's. That reader opens other files
/// for a name with a pattern in it, in any of the path's directories, and planes beside a file
/// called x.Y.
bool isPlainPictureName(const QString &path)
{
    static const QRegularExpression plain(QStringLiteral("^[^%*?{]*\\.(jpe?g|png|webp|bmp|tiff?)$"),
        QRegularExpression::CaseInsensitiveOption);
    return plain.match(path).hasMatch();
}

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
    QByteArray formats = singleFileFormats;
    if (isPlainPictureName(path))
        formats += ",image2";
    m_input = openMediaFile(path, formats, { &HRMediaDemuxer::interrupt, this });
    return isOpen();
}

bool HRMediaDemuxer::findStreams(qint64 mostPixels)
{
    startReading();
    std::vector<AVDictionary *> options(m_input->nb_streams, nullptr);
    for (AVDictionary *&option : options)
        av_dict_set_int(&option, "max_pixels", mostPixels, 0);
    const int result = avformat_find_stream_info(m_input.get(), options.data());
    for (AVDictionary *&option : options)
        av_dict_free(&option);
    return result >= 0;
}

qint64 HRMediaDemuxer::largestPicture() const
{
    qint64 largest = 0;
    for (unsigned i = 0; i < m_input->nb_streams; ++i) {
        const AVCodecParameters *stream = m_input->streams[i]->codecpar;
        largest = std::max(largest, qint64(stream->width) * stream->height);
    }
    return largest;
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
    if (!m_input)
        return false;
    const bool isBareStream = m_input->iformat->flags & AVFMT_NOTIMESTAMPS;
    const qint64 longest = isBareStream ? longestSearch : longestPacket;
    return m_input->pb->bytes_read - m_readBefore > longest;
}

int HRMediaDemuxer::interrupt(void *opaque)
{
    const auto *demuxer = static_cast<HRMediaDemuxer *>(opaque);
    return demuxer->m_shouldStop() || demuxer->readsTooMuch() ? 1 : 0;
}

} // namespace Hintreels
