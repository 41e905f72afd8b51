// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestClip.h"

#include "video/HRFFmpegHandle_p.h"

extern "C" {
#include <libavutil/opt.h>
#include <libavutil/pixdesc.h>
}

using namespace Hintreels;

namespace {

constexpr int darkest = 10; // grey of number 0
constexpr int step = 4; // between the greys of two numbers

/// Encodes pictures into one file. Whatever fails here is a fault of the test's surroundings.
class Encoder
{
public:
    Encoder(const TestClip &clip, const QString &path)
        : m_packet(av_packet_alloc())
        , m_frame(av_frame_alloc())
    {
        check(avformat_alloc_output_context2(&m_output, nullptr, nullptr, qPrintable(path)));
        openEncoder(clip);
        m_stream = avformat_new_stream(m_output, nullptr);
        m_stream->time_base = m_encoder->time_base;
        m_stream->avg_frame_rate = m_encoder->framerate;
        check(avcodec_parameters_from_context(m_stream->codecpar, m_encoder.get()));
        describeStream(clip);
        check(avio_open(&m_output->pb, qPrintable(path), AVIO_FLAG_WRITE));
        writeHeader(clip.fileOptions);
    }

    ~Encoder()
    {
        avio_closep(&m_output->pb);
        avformat_free_context(m_output);
    }

    void encode(const QImage &picture, int time)
    {
        check(av_frame_make_writable(m_frame.get()));
        const QImage image = picture.convertToFormat(QImage::Format_RGB32);
        const uint8_t *const planes[4] = { image.constBits() };
        const int strides[4] = { int(image.bytesPerLine()) };
        sws_scale(
            m_scaler.get(), planes, strides, 0, image.height(), m_frame->data, m_frame->linesize);
        m_frame->pts = time;
        send(m_frame.get());
    }

    void finish()
    {
        send(nullptr);
        check(av_write_trailer(m_output));
    }

private:
    static void check(int result)
    {
        if (result < 0)
            qFatal("cannot encode the clip: error %d", result);
    }

    void openEncoder(const TestClip &clip)
    {
        const AVCodec *codec = avcodec_find_encoder_by_name(clip.codec.constData());
        check(codec ? 0 : AVERROR_ENCODER_NOT_FOUND);
        m_encoder.reset(avcodec_alloc_context3(codec));
        m_encoder->width = clip.size.width();
        m_encoder->height = clip.size.height();
        m_encoder->pix_fmt = av_get_pix_fmt(clip.format.constData());
        m_encoder->time_base = { clip.seconds, clip.rate };
        m_encoder->framerate = { clip.rate, clip.seconds };
        m_encoder->colorspace = AVColorSpace(clip.matrix);
        m_encoder->color_range = AVColorRange(clip.range);
        m_encoder->thread_count = 1;
        m_encoder->strict_std_compliance = FF_COMPLIANCE_UNOFFICIAL;
        if (m_output->oformat->flags & AVFMT_GLOBALHEADER)
            m_encoder->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
        AVDictionary *options = nullptr;
        check(av_dict_parse_string(&options, clip.options.constData(), "=", ":", 0));
        check(avcodec_open2(m_encoder.get(), codec, &options));
        av_dict_free(&options);
        prepareFrame();
    }

    void prepareFrame()
    {
        m_frame->format = m_encoder->pix_fmt;
        m_frame->width = m_encoder->width;
        m_frame->height = m_encoder->height;
        check(av_frame_get_buffer(m_frame.get(), 0));
        m_scaler.reset(sws_getCachedContext(nullptr, m_frame->width, m_frame->height,
            AV_PIX_FMT_RGB32, m_frame->width, m_frame->height, m_encoder->pix_fmt, SWS_BICUBIC,
            nullptr, nullptr, nullptr));
        m_frame->colorspace = m_encoder->colorspace;
        m_frame->color_range = m_encoder->color_range;
        const bool isFull = m_encoder->color_range == AVCOL_RANGE_JPEG;
        if (m_encoder->colorspace != AVCOL_SPC_UNSPECIFIED || isFull) {
            sws_setColorspaceDetails(m_scaler.get(), sws_getCoefficients(SWS_CS_DEFAULT), 1,
                sws_getCoefficients(m_encoder->colorspace), isFull, 0, 1 << 16, 1 << 16);
        }
    }

    void describeStream(const TestClip &clip)
    {
        if (!clip.pixel.isEmpty()) {
            m_stream->sample_aspect_ratio = { clip.pixel.width(), clip.pixel.height() };
            m_stream->codecpar->sample_aspect_ratio = m_stream->sample_aspect_ratio;
        }
        if (clip.turn.isEmpty())
            return;
        auto *matrix = reinterpret_cast<int32_t *>(
            av_stream_new_side_data(m_stream, AV_PKT_DATA_DISPLAYMATRIX, 9 * sizeof(int32_t)));
        std::fill(matrix, matrix + 9, 0);
        for (int i = 0; i < 4; ++i)
            matrix[i + i / 2] = clip.turn[i] * (1 << 16);
        matrix[8] = 1 << 30;
    }

    void writeHeader(const QByteArray &fileOptions)
    {
        AVDictionary *options = nullptr;
        check(av_dict_parse_string(&options, fileOptions.constData(), "=", ":", 0));
        check(avformat_write_header(m_output, &options));
        av_dict_free(&options);
    }

    void send(const AVFrame *frame)
    {
        check(avcodec_send_frame(m_encoder.get(), frame));
        while (avcodec_receive_packet(m_encoder.get(), m_packet.get()) >= 0) {
            if (m_packet->duration == 0)
                m_packet->duration = 1;
            av_packet_rescale_ts(m_packet.get(), m_encoder->time_base, m_stream->time_base);
            check(av_interleaved_write_frame(m_output, m_packet.get()));
        }
    }

    AVFormatContext *m_output = nullptr;
    AVStream *m_stream = nullptr;
    HRFFmpegHandle<AVCodecContext> m_encoder;
    HRFFmpegHandle<AVPacket> m_packet;
    HRFFmpegHandle<AVFrame> m_frame;
    HRFFmpegHandle<SwsContext> m_scaler;
};

} // namespace

QString TestClip::write(const QString &path, const Draw &draw) const
{
    av_log_set_level(AV_LOG_QUIET);
    Encoder encoder(*this, path);
    for (int i = 0; i < pictures; ++i)
        encoder.encode(draw(size, i), times.value(i, i));
    encoder.finish();
    return path;
}

QImage TestClip::numbered(const QSize &size, int number)
{
    const int grey = darkest + step * number;
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(qRgb(grey, grey, grey));
    return picture;
}

QImage TestClip::blinking(const QSize &size, int number)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(number % 2 == 0 ? Qt::black : Qt::white);
    return picture;
}

int TestClip::numberOf(const QImage &picture)
{
    return qRound((qGreen(picture.pixel(picture.rect().center())) - darkest) / double(step));
}
