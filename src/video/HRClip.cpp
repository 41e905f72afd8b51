// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRClip_p.h"

#include <cmath>

namespace Hintreels {

HRClip::HRClip(HRMediaDemuxer::ShouldStop shouldStop)
    : m_shouldStop(shouldStop)
    , m_demuxer(std::move(shouldStop))
    , m_packet(av_packet_alloc())
{
}

QString HRClip::open(const QString &path)
{
    close();
    const QString failure = tryOpen(path);
    if (!failure.isNull())
        close();
    return failure;
}

void HRClip::close()
{
    m_converter.close();
    m_decoder.close();
    m_demuxer.close();
}

HRClipFacts HRClip::facts() const
{
    return { QSize(m_decoder.width(), m_decoder.height()), m_demuxer.duration(),
        m_decoder.timeBase(), m_demuxer.frameRate() };
}

HRVideoFrame HRClip::readPicture()
{
    while (!m_shouldStop()) {
        switch (m_decoder.receive()) {
        case HRMediaDecoder::pictureReady:
            return m_converter.convert(m_decoder.picture());
        case HRMediaDecoder::packetNeeded:
            feedDecoder();
            break;
        case HRMediaDecoder::pictureBroken:
            break;
        case HRMediaDecoder::allDecoded:
            return HRVideoFrame();
        }
    }
    return HRVideoFrame();
}

void HRClip::seek(double seconds, bool backward)
{
    const double ticks = seconds / quotient(m_demuxer.stream()->time_base);
    const bool fits = std::isfinite(ticks) && std::abs(ticks) < 9e18; // of a 64-bit count
    m_demuxer.seek(fits ? qint64(ticks) : 0, backward ? AVSEEK_FLAG_BACKWARD : 0);
    m_decoder.flush();
}

void HRClip::rewind()
{
    m_demuxer.seek(0, AVSEEK_FLAG_BYTE);
}

QString HRClip::tryOpen(const QString &path)
{
    if (!m_packet || !m_demuxer.open(path))
        return QStringLiteral("Could not open media at: %1");
    if (!m_demuxer.findStreams())
        return QStringLiteral("Could not find any stream information in media at: %1");
    if (!m_demuxer.chooseVideoStream())
        return QStringLiteral("Could not find a video stream in %1");
    if (!m_decoder.open(m_demuxer.stream(), m_demuxer.decoder()))
        return QStringLiteral("Could not open codec for stream in: %1");
    if (!m_decoder.allocatePicture())
        return QStringLiteral("Could not allocate original frame in %1");
    const QSize size(m_decoder.width(), m_decoder.height());
    // A file that ends behind its header has no picture format, and perhaps no size either.
    const AVPixelFormat format = m_decoder.format();
    if (format != AV_PIX_FMT_NONE && !m_converter.allocate(size))
        return QStringLiteral("Could not allocate rgb frame in %1");
    if (!m_converter.prepare(size, format))
        return QStringLiteral("Could not get a swscale context for %1");
    return QString();
}

void HRClip::feedDecoder()
{
    if (!m_demuxer.readPacket(m_packet.get())) {
        m_decoder.sendEnd();
        return;
    }
    m_decoder.send(m_packet.get());
    av_packet_unref(m_packet.get());
}

} // namespace Hintreels
