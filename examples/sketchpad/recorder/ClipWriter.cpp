// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "recorder/ClipWriter.h"

#include <QFile>
#include <QImage>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/opt.h>
#include <libswscale/swscale.h>
}

namespace Sketchpad {

namespace {

// Flat colours and thin lines stay clean at this rate factor, and ten seconds stay near 100 KB.
const char rateFactor[] = "23";

struct Free
{
    void operator()(AVCodecContext *encoder) const { avcodec_free_context(&encoder); }
    void operator()(AVFrame *frame) const { av_frame_free(&frame); }
    void operator()(AVPacket *packet) const { av_packet_free(&packet); }
    void operator()(SwsContext *scaler) const { sws_freeContext(scaler); }
    void operator()(AVFormatContext *container) const
    {
        avio_closep(&container->pb);
        avformat_free_context(container);
    }
};

template <typename T>
using Handle = std::unique_ptr<T, Free>;

} // namespace

struct ClipWriterPrivate
{
    QByteArray path;
    QSize size;
    int picturesPerSecond = 0;
    QString error;
    Handle<AVFormatContext> container;
    Handle<AVCodecContext> encoder;
    Handle<AVFrame> frame;
    Handle<AVPacket> packet;
    Handle<SwsContext> scaler;
    AVStream *stream = nullptr; // belongs to the container
    int64_t written = 0;

    bool succeeded(int result, const char *step);
    bool openContainer();
    bool openEncoder();
    bool openStream();
    bool openPicture();
    bool send(const AVFrame *picture);
};

bool ClipWriterPrivate::succeeded(int result, const char *step)
{
    if (result >= 0)
        return true;
    char reason[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(result, reason, sizeof reason);
    error = QString("%1: %2").arg(step, reason);
    return false;
}

bool ClipWriterPrivate::openContainer()
{
    AVFormatContext *made = nullptr;
    const int result = avformat_alloc_output_context2(&made, nullptr, "mp4", path.constData());
    container.reset(made);
    if (!succeeded(result, "container"))
        return false;
    // Without it the file would carry the time at which it was made.
    container->flags |= AVFMT_FLAG_BITEXACT;
    return succeeded(avio_open(&container->pb, path.constData(), AVIO_FLAG_WRITE), "file");
}

bool ClipWriterPrivate::openEncoder()
{
    const AVCodec *codec = avcodec_find_encoder_by_name("libx264");
    if (!codec)
        return succeeded(AVERROR_ENCODER_NOT_FOUND, "encoder libx264");
    encoder.reset(avcodec_alloc_context3(codec));
    encoder->width = size.width();
    encoder->height = size.height();
    encoder->pix_fmt = AV_PIX_FMT_YUV420P;
    encoder->time_base = { 1, picturesPerSecond };
    encoder->framerate = { picturesPerSecond, 1 };
    encoder->thread_count = 1; // the encoder's choices depend on the number of threads
    encoder->gop_size = 10 * picturesPerSecond;
    encoder->flags |= AV_CODEC_FLAG_GLOBAL_HEADER | AV_CODEC_FLAG_BITEXACT;
    av_opt_set(encoder->priv_data, "preset", "slower", 0);
    av_opt_set(encoder->priv_data, "tune", "animation", 0);
    av_opt_set(encoder->priv_data, "crf", rateFactor, 0);
    return succeeded(avcodec_open2(encoder.get(), codec, nullptr), "encoder");
}

bool ClipWriterPrivate::openStream()
{
    stream = avformat_new_stream(container.get(), nullptr);
    stream->time_base = encoder->time_base;
    stream->avg_frame_rate = encoder->framerate;
    avcodec_parameters_from_context(stream->codecpar, encoder.get());
    AVDictionary *options = nullptr;
    av_dict_set(&options, "movflags", "+faststart", 0);
    const int result = avformat_write_header(container.get(), &options);
    av_dict_free(&options);
    return succeeded(result, "header");
}

bool ClipWriterPrivate::openPicture()
{
    packet.reset(av_packet_alloc());
    frame.reset(av_frame_alloc());
    frame->format = encoder->pix_fmt;
    frame->width = encoder->width;
    frame->height = encoder->height;
    scaler.reset(sws_getContext(encoder->width, encoder->height, AV_PIX_FMT_RGB32, encoder->width,
        encoder->height, encoder->pix_fmt, SWS_BICUBIC | SWS_ACCURATE_RND, nullptr, nullptr,
        nullptr));
    return succeeded(scaler ? av_frame_get_buffer(frame.get(), 0) : AVERROR(EINVAL), "picture");
}

/// Hands a picture to the encoder, or its end where null, and writes what comes back.
bool ClipWriterPrivate::send(const AVFrame *picture)
{
    if (!succeeded(avcodec_send_frame(encoder.get(), picture), "encoding"))
        return false;
    int result = 0;
    while ((result = avcodec_receive_packet(encoder.get(), packet.get())) >= 0) {
        packet->duration = 1;
        av_packet_rescale_ts(packet.get(), encoder->time_base, stream->time_base);
        if (!succeeded(av_interleaved_write_frame(container.get(), packet.get()), "writing"))
            return false;
    }
    return result == AVERROR(EAGAIN) || result == AVERROR_EOF || succeeded(result, "encoding");
}

ClipWriter::ClipWriter(const QString &path, const QSize &size, int picturesPerSecond)
    : d(std::make_unique<ClipWriterPrivate>())
{
    d->path = QFile::encodeName(path);
    d->size = size;
    d->picturesPerSecond = picturesPerSecond;
}

ClipWriter::~ClipWriter() = default;

bool ClipWriter::open()
{
    av_log_set_level(AV_LOG_ERROR); // the encoder tells a story otherwise
    return d->openContainer() && d->openEncoder() && d->openStream() && d->openPicture();
}

bool ClipWriter::add(const QImage &picture)
{
    // The encoder may still read the picture handed over before.
    if (!d->succeeded(av_frame_make_writable(d->frame.get()), "picture"))
        return false;
    const uint8_t *const rows[] = { picture.constBits() };
    const int widths[] = { int(picture.bytesPerLine()) };
    sws_scale(
        d->scaler.get(), rows, widths, 0, picture.height(), d->frame->data, d->frame->linesize);
    d->frame->pts = d->written++;
    return d->send(d->frame.get());
}

bool ClipWriter::close()
{
    return d->send(nullptr) && d->succeeded(av_write_trailer(d->container.get()), "end of file");
}

QString ClipWriter::error() const
{
    return d->error;
}

} // namespace Sketchpad
