// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "video/HRMediaDecoder_p.h"
#include "video/HRMediaDemuxer_p.h"
#include "video/HRPictureConverter_p.h"
#include "video/HRPictureTimes_p.h"

#include <QTransform>

namespace Hintreels {

constexpr qint64 standardLargestPicture = 64'000'000; // pixels

/// What is known of a clip when it is open.
struct HRClipFacts
{
    QSize size; // pixels
    QTransform upright; // of the pictures, to how they are to be seen
    double duration = 0.0; // seconds; 0 where it is not known
    double timeBase = 0.0; // seconds per tick of the codec; 0 where it has none
    double frameRate = 0.0; // pictures per second; 0 where it is not known
};

/// A clip, from file to pictures in order of presentation. Lock-free; one thread at a time.
class HRClip
{
public:
    /// @param shouldStop asked during every long operation; true ends that as a failure
    explicit HRClip(HRMediaDemuxer::ShouldStop shouldStop);

    /// Opens the file at @p path in place of what was open.
    /// @param largestPicture in pixels: a file with a larger one is refused, and a stream that
    /// changes to one ends there
    /// @return null, or else what failed, with %1 for the path; then nothing is open
    QString open(const QString &path, qint64 largestPicture = standardLargestPicture);
    /// Whether the matrix and the range that the pictures name count; see HRPictureConverter.
    void setColorsByFile(bool byFile) { m_converter.setColorsByFile(byFile); }
    void close();
    bool isOpen() const { return m_demuxer.isOpen(); }
    /// What ended the pictures before their time, with %1 for the path; null where nothing did.
    QString failure() const { return m_failure; }

    /// While it is open.
    HRClipFacts facts() const;
    /// While it is open: the next picture, without its time; null at the end, also where the rest
    /// cannot be read or allocated, and when asked to stop. A picture that cannot be decoded is
    /// passed over.
    HRVideoFrame readPicture();
    /// Of the picture that was read last, as the file has it.
    HRFileTime pictureTime() const { return m_pictureTime; }
    /// While it is open: goes to @p seconds, as near as the format allows.
    void seek(double seconds, bool backward);
    /// While it is open: goes to the start. Pictures that the decoder holds still come first,
    /// unless the last packet was read.
    void restart();
    /// While it is open: goes to the first byte.
    void rewind();

private:
    QString tryOpen(const QString &path);
    HRVideoFrame convertPicture();
    void feedDecoder();

    qint64 m_largestPicture = standardLargestPicture; // pixels
    QString m_failure;
    HRFileTime m_pictureTime;
    HRMediaDemuxer::ShouldStop m_shouldStop;
    HRMediaDemuxer m_demuxer;
    HRMediaDecoder m_decoder;
    HRPictureConverter m_converter;
    HRFFmpegHandle<AVPacket> m_packet;
};

} // namespace Hintreels
