// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "video/HRFFmpegHandle_p.h"

#include <QtGlobal>

namespace Hintreels {

/// Turns packets into pictures. Lock-free; one thread at a time.
class HRMediaDecoder
{
public:
    enum Result
    {
        pictureReady, ///< picture() holds the next one
        packetNeeded, ///< send() the next packet
        pictureBroken, ///< one picture could not be decoded; go on receiving
        allDecoded ///< after the end was sent and the last picture received
    };

    HRMediaDecoder() = default;
    Q_DISABLE_COPY(HRMediaDecoder)

    // Opening, in this order; each is false on failure.
    bool open(const AVStream *stream, const AVCodec *decoder);
    bool allocatePicture();

    Result receive();
    /// A packet that the decoder refuses is passed over, and so is its picture.
    void send(const AVPacket *packet);
    /// No packet follows: the pictures that the decoder still holds come next.
    void sendEnd();
    /// Forgets what it holds, and that the end was sent.
    void flush();
    void close();

    const AVFrame *picture() const { return m_picture.get(); }
    /// In pixels, and as an AVPixelFormat, of the stream as it was opened.
    int width() const { return m_decoder->width; }
    int height() const { return m_decoder->height; }
    AVPixelFormat format() const { return m_decoder->pix_fmt; }
    /// Seconds per tick of the codec; 0 where it has none.
    double timeBase() const;

private:
    HRFFmpegHandle<AVCodecContext> m_decoder;
    HRFFmpegHandle<AVFrame> m_picture;
};

} // namespace Hintreels
