// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRClip_p.h"

#include "video/upright_p.h"

#include <cmath>
#include <limits>

namespace Hintreels {

namespace {

// FFmpeg rounds a width up to 64 before it compares.
constexpr qint64 roundedUp = qint64(63) * 65536;

/// What FFmpeg is told, which takes no more than the largest int.
qint64 mostPixels(qint64 largestPicture)
{
    return qBound(qint64(0), largestPicture + roundedUp, qint64(std::numeric_limits<int>::max()));
}

/// @param ticks of @p unit; not a number where FFmpeg knows none
double toSeconds(qint64 ticks, AVRational unit)
{
    return ticks == AV_NOPTS_VALUE ? std::numeric_limits<double>::quiet_NaN()
                                   : double(ticks) * quotient(unit);
}

QString tooLarge()
{
    return QStringLiteral("Could not allocate rgb frame in %1");
}

} // namespace

HRClip::HRClip(HRMediaDemuxer::ShouldStop shouldStop)
    : m_shouldStop(shouldStop)
    , m_demuxer(std::move(shouldStop))
    , m_packet(av_packet_alloc())
{
}

QString HRClip::open(const QString &path, qint64 largestPicture)
{
    close();
    m_largestPicture = largestPicture;
    m_failure.clear();
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
    const QSize size(m_decoder.width(), m_decoder.height());
    return { size, uprightTransform(size, m_demuxer.stream()), m_demuxer.duration(),
        m_decoder.timeBase(), m_demuxer.frameRate() };
}

HRVideoFrame HRClip::readPicture()
{
    while (m_failure.isNull() && !m_shouldStop()) {
        switch (m_decoder.receive()) {
        case HRMediaDecoder::pictureReady:
            return convertPicture();
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

void HRClip::restart()
{
    m_demuxer.seek(0, 0);
    // Only a drained decoder would take no more packets.
    if (m_decoder.isDraining())
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
    // By the header, before anything is decoded, and again by what decoding has told.
    if (m_demuxer.largestPicture() > m_largestPicture)
        return tooLarge();
    if (!m_demuxer.findStreams(mostPixels(m_largestPicture)))
        return QStringLiteral("Could not find any stream information in media at: %1");
    if (m_demuxer.largestPicture() > m_largestPicture)
        return tooLarge();
    if (!m_demuxer.chooseVideoStream())
        return QStringLiteral("Could not find a video stream in %1");
    if (!m_decoder.open(m_demuxer.stream(), m_demuxer.decoder(), mostPixels(m_largestPicture)))
        return QStringLiteral("Could not open codec for stream in: %1");
    if (!m_decoder.allocatePicture())
        return QStringLiteral("Could not allocate original frame in %1");
    const QSize size(m_decoder.width(), m_decoder.height());
    // A file that ends behind its header has no picture format, and perhaps no size either.
    const AVPixelFormat format = m_decoder.format();
    if (format != AV_PIX_FMT_NONE && !m_converter.allocate(size))
        return tooLarge();
    if (!m_converter.prepare({ size, format }))
        return QStringLiteral("Could not get a swscale context for %1");
    return QString();
}

HRVideoFrame HRClip::convertPicture()
{
    const AVFrame *picture = m_decoder.picture();
    const AVRational unit = m_demuxer.stream()->time_base;
    m_pictureTime = { toSeconds(picture->best_effort_timestamp, unit),
        toSeconds(picture->pkt_duration, unit) };
    HRVideoFrame converted;
    if (qint64(picture->width) * picture->height <= m_largestPicture)
        converted = m_converter.convert(picture);
    else
        m_failure = tooLarge();
    m_decoder.dropPicture();
    return converted;
}

void HRClip::feedDecoder()
{
    if (!m_demuxer.readPacket(m_packet.get())) {
        m_decoder.sendEnd();
        return;
    }
    const bool taken = m_decoder.send(m_packet.get());
    av_packet_unref(m_packet.get());
    if (!taken && (m_decoder.pixels() == 0 || m_decoder.pixels() > m_largestPicture))
        m_failure = tooLarge();
}

} // namespace Hintreels
