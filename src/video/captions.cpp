// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/captions_p.h"

#include "video/mediaFile_p.h"

#include <QFileInfo>

namespace Hintreels {

namespace {

constexpr qint64 largestCaptions = 100'000; // bytes: read in some 15 ms at worst, by the GUI thread

/// Owns what the decoder allocates for one packet.
struct DecodedText
{
    AVSubtitle subtitle{};
    ~DecodedText() { avsubtitle_free(&subtitle); }
};

HRFFmpegHandle<AVCodecContext> openDecoder(const AVFormatContext &input)
{
    const AVCodec *codec = avcodec_find_decoder(AV_CODEC_ID_WEBVTT);
    if (!codec || input.nb_streams != 1)
        return {};
    HRFFmpegHandle<AVCodecContext> decoder(avcodec_alloc_context3(codec));
    const AVStream *stream = input.streams[0];
    if (!decoder || avcodec_parameters_to_context(decoder.get(), stream->codecpar) < 0)
        return {};
    decoder->pkt_timebase = stream->time_base;
    return avcodec_open2(decoder.get(), codec, nullptr) < 0 ? nullptr : std::move(decoder);
}

bool isEscapedBrace(const QString &text, int at)
{
    return text.at(at) == u'\\' && at + 1 < text.size()
        && (text.at(at + 1) == u'{' || text.at(at + 1) == u'}');
}

/// A text without what stands in braces. Those of the text itself come with a backslash.
QString withoutOverrides(const QString &text)
{
    QString plain;
    for (int i = 0; i < text.size(); ++i) {
        const int close = text.at(i) == u'{' ? text.indexOf(u'}', i) : -1;
        if (close >= 0)
            i = close;
        else
            plain += text.at(isEscapedBrace(text, i) ? ++i : i);
    }
    return plain;
}

/// The text of one line of the decoder's dialogue format: what follows its eighth comma, without
/// the overrides in braces.
QString plainText(const char *dialogue)
{
    QString text = withoutOverrides(QString::fromUtf8(dialogue).section(u',', 8));
    return text.replace(QStringLiteral("\\N"), QStringLiteral("\n"))
        .replace(QStringLiteral("\\h"), QStringLiteral(" "))
        .trimmed();
}

QString textOf(const AVSubtitle &subtitle)
{
    QStringList lines;
    for (unsigned i = 0; i < subtitle.num_rects; ++i) {
        if (subtitle.rects[i]->ass)
            lines.append(plainText(subtitle.rects[i]->ass));
    }
    return lines.join(u'\n');
}

QString decode(AVCodecContext *decoder, AVPacket *packet)
{
    DecodedText decoded;
    int complete = 0;
    const int result = avcodec_decode_subtitle2(decoder, &decoded.subtitle, &complete, packet);
    return result >= 0 && complete ? textOf(decoded.subtitle) : QString();
}

} // namespace

QVector<HRCaption> readCaptions(const QString &path)
{
    if (QFileInfo(path).size() > largestCaptions)
        return {};
    const HRFFmpegHandle<AVFormatContext> input = openMediaFile(path, "webvtt");
    const HRFFmpegHandle<AVCodecContext> decoder = input ? openDecoder(*input) : nullptr;
    const HRFFmpegHandle<AVPacket> packet(av_packet_alloc());
    QVector<HRCaption> captions;
    while (decoder && packet && av_read_frame(input.get(), packet.get()) >= 0) {
        const double unit = av_q2d(input->streams[0]->time_base);
        const double start = double(packet->pts) * unit;
        const QString text = decode(decoder.get(), packet.get());
        if (!text.isEmpty())
            captions.append({ start, start + double(packet->duration) * unit, text });
        av_packet_unref(packet.get());
    }
    return captions;
}

QStringList captionFiles(const QString &clip, const QVector<QLocale> &locales)
{
    const int dot = clip.lastIndexOf(u'.');
    const QString base = dot > clip.lastIndexOf(u'/') ? clip.left(dot) : clip;
    QStringList files;
    for (const QLocale &locale : locales)
        files.append(QStringLiteral("%1.%2.vtt").arg(base, locale.name()));
    files.append(base + QLatin1String(".vtt"));
    files.removeDuplicates();
    return files;
}

} // namespace Hintreels
