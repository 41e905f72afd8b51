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

    /// @param mostPixels of a picture that is decoded
    bool open(const AVStream *stream, const AVCodec *decoder, qint64 mostPixels);
    bool allocatePicture();

    Result receive();
    /// False where the decoder refuses the packet: it is passed over, and so is its picture.
    bool send(const AVPacket *packet);
    /// No packet follows: the pictures that the decoder still holds come next.
    void sendEnd();
    /// Whether the end was sent.
    bool isDraining() const { return m_draining; }
    /// Lets go of picture(), so that the decoder need not copy what it goes on from.
    void dropPicture() { av_frame_unref(m_picture.get()); }
    /// Forgets what it holds, and that the end was sent.
    void flush();
    void close();

    const AVFrame *picture() const { return m_picture.get(); }
    /// Pixels of the pictures to come; 0 where the decoder has refused their size, or they have
    /// none.
    qint64 pixels() const { return qint64(m_decoder->width) * m_decoder->height; }
    /// In pixels, and as an AVPixelFormat, of the stream as it was opened.
    int width() const { return m_decoder->width; }
    int height() const { return m_decoder->height; }
    AVPixelFormat format() const { return m_decoder->pix_fmt; }
    /// Seconds per tick of the codec; 0 where it has none.
    double timeBase() const;

private:
    HRFFmpegHandle<AVCodecContext> m_decoder;
    HRFFmpegHandle<AVFrame> m_picture;
    bool m_draining = false;
};

} // namespace Hintreels
