// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "video/HRFFmpegHandle_p.h"

#include <QString>

#include <functional>

namespace Hintreels {

/// Opens a local video file and reads the packets of its first video stream.
///
/// Only regular files are opened, in formats that are one file and name no other: whatever a file
/// is called and whatever it says, no second file is opened and no network. Lock-free; one thread
/// at a time.
class HRMediaDemuxer
{
public:
    using ShouldStop = std::function<bool()>;

    /// @param shouldStop asked during every long operation; true ends that as a failure
    explicit HRMediaDemuxer(ShouldStop shouldStop);
    Q_DISABLE_COPY(HRMediaDemuxer)

    // Opening, in this order; each is false on failure.
    bool open(const QString &path);
    /// @param mostPixels of a picture that is decoded to find out about its stream
    bool findStreams(qint64 mostPixels);
    bool chooseVideoStream();

    /// While it is open: the pixels of the largest picture that any stream is known to have by now.
    qint64 largestPicture() const;

    /// False at the end of the file, on an error and when asked to stop.
    bool readPacket(AVPacket *packet);
    /// Goes to @p target, in the stream's time base.
    /// @param flags of av_seek_frame()
    void seek(qint64 target, int flags);
    void close();

    bool isOpen() const { return m_input != nullptr; }
    /// The chosen stream, owned by the demuxer, and the decoder that suits it.
    const AVStream *stream() const { return m_stream; }
    const AVCodec *decoder() const { return m_decoder; }
    /// Of the chosen stream, in seconds; the file's where the stream has none, else 0.
    double duration() const;
    /// Of the chosen stream, in pictures per second; 0 where it is not known.
    double frameRate() const;

private:
    void startReading();
    bool readsTooMuch() const;
    static int interrupt(void *opaque);

    ShouldStop m_shouldStop;
    HRFFmpegHandle<AVFormatContext> m_input;
    const AVStream *m_stream = nullptr;
    const AVCodec *m_decoder = nullptr;
    qint64 m_readBefore = 0; // bytes, before the operation that reads now
};

/// @p ratio as a number; 0 where its denominator is 0.
double quotient(AVRational ratio);

} // namespace Hintreels
