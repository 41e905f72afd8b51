// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRPictureConverter_p.h"

#include <QtEndian>

#include <algorithm>
#include <functional>
#include <numeric>

namespace Hintreels {

namespace {

// The scaler works on blocks of pixels: rows of exactly width x 3 bytes leave it columns that it
// does not convert, and at small widths it writes past their end.
constexpr int rowPixels = 64;
constexpr int slack = 256; // bytes behind the last row

constexpr QRgb opaque = 0xff000000u;

constexpr int directWidthStep = 16; // pixels; of other widths the scaler leaves columns out

/// Four bytes a pixel from three. Reads one byte past the last pixel: the slack.
void unpackRow(const uint8_t *rgb, QRgb *target, int width)
{
    for (int x = 0; x < width; ++x)
        target[x] = opaque | qFromBigEndian<quint32>(rgb + qptrdiff(3) * x) >> 8;
}

/// Of a picture of 32 bits.
const QRgb *row(const AVFrame *picture, int y)
{
    return reinterpret_cast<const QRgb *>(picture->data[0] + qint64(y) * picture->linesize[0]);
}

HRPictureColors colorsOf(const AVFrame *picture)
{
    return { picture->colorspace, picture->color_range };
}

/// Whether its rows lie as an image has them, and no pixel is transparent.
bool isImage(const AVFrame *picture)
{
    const auto start = reinterpret_cast<quintptr>(picture->data[0]);
    const int stride = picture->linesize[0];
    if (stride <= 0 || stride % int(sizeof(QRgb)) != 0 || start % sizeof(QRgb) != 0)
        return false;
    for (int y = 0; y < picture->height; ++y) {
        const QRgb *pixels = row(picture, y);
        if (std::accumulate(pixels, pixels + picture->width, opaque, std::bit_and<>()) != opaque)
            return false;
    }
    return true;
}

/// The picture where the decoder has put it, whose memory it keeps; null where that cannot be had.
HRVideoFrame shared(const AVFrame *picture)
{
    HRFFmpegHandle<AVFrame> owner(av_frame_clone(picture));
    if (!owner)
        return HRVideoFrame();
    // Not to be written to: the decoder may go on from it.
    const uchar *memory = owner->data[0];
    const QImage image(
        memory, owner->width, owner->height, owner->linesize[0], QImage::Format_RGB32,
        [](void *held) { HRFFmpegFree()(static_cast<AVFrame *>(held)); }, owner.get());
    if (!image.isNull())
        (void)owner.release(); // to the image
    return HRVideoFrame(image, 0);
}

} // namespace

bool HRPictureConverter::allocate(const QSize &size)
{
    close();
    if (size.isEmpty())
        return false;
    m_size = size;
    const qint64 stride = (qint64(size.width()) + rowPixels - 1) / rowPixels * rowPixels * 3;
    const qint64 bytes = stride * size.height() + slack;
    if (bytes > std::numeric_limits<int>::max())
        return false;
    m_rgbStride = int(stride);
    m_rgb.reset(static_cast<uint8_t *>(av_malloc(size_t(bytes))));
    return m_rgb != nullptr;
}

bool HRPictureConverter::prepare(const HRPictureShape &shape, const HRPictureColors &colors)
{
    // The scaler aborts the process on a picture without a format.
    if (shape.size.isEmpty() || !sws_isSupportedInput(shape.format))
        return false;
    m_isDirect = isDirect(shape);
    m_source = shape;
    m_colors = colors;
    if (m_isDirect)
        return m_direct.prepare(shape, colors);
    m_scaler = makeScaler(shape, { m_size, AV_PIX_FMT_RGB24 }, colors);
    return m_scaler != nullptr;
}

HRVideoFrame HRPictureConverter::convert(const AVFrame *picture)
{
    // All of this may change in the middle of a stream.
    const HRPictureShape shape{ QSize(picture->width, picture->height),
        AVPixelFormat(picture->format) };
    const HRPictureColors colors = m_colorsByFile ? colorsOf(picture) : HRPictureColors();
    const bool changed
        = shape.size != m_source.size || shape.format != m_source.format || colors != m_colors;
    if (changed && !prepare(shape, colors))
        return HRVideoFrame();
    const bool isReady = has32Bits(picture);
    if (isReady && isImage(picture))
        return shared(picture);
    const bool holdsLast = takeTarget();
    if (m_target.isNull())
        return m_target;
    m_target.setDamage(0, QRegion());
    if (isReady)
        copy(picture, &m_target);
    else if (!(m_isDirect ? m_direct.convert(picture, holdsLast, &m_target)
                          : convertByRgb24(picture, &m_target)))
        return HRVideoFrame();
    return m_target;
}

/// Finds memory to convert to: that of the last result, if nobody holds it any more. Whoever keeps
/// only what changed in a picture gives it back at once, still in the processor's caches.
/// @return true where it is that
bool HRPictureConverter::takeTarget()
{
    // Counting up and down joins this thread with the one that let go last; asking does not.
    const bool isFree = !m_target.isNull() && m_target.isDetached();
    const HRVideoFrame counted = m_target;
    if (!isFree)
        m_target = HRVideoFrame(m_size.width(), m_size.height(), QImage::Format_RGB32, 0);
    return isFree;
}

void HRPictureConverter::close()
{
    m_target = HRVideoFrame();
    m_direct.close();
    m_scaler.reset();
    m_rgb.reset();
    m_size = QSize();
    m_source = HRPictureShape();
}

// What a GIF gives: the pixels are ours but for their alpha, and as a rule with it.
bool HRPictureConverter::has32Bits(const AVFrame *picture) const
{
    const bool isOfFormat
        = picture->format == AV_PIX_FMT_RGB32 || picture->format == AV_PIX_FMT_0RGB32;
    return isOfFormat && m_source.size == m_size;
}

// Measured for 8-bit 4:2:0 of even height, and held by a test over formats and sizes. The others
// differ by up to 255: the scaler rounds and filters colour by other code for packed RGB24.
bool HRPictureConverter::isDirect(const HRPictureShape &shape) const
{
    const bool planar420
        = shape.format == AV_PIX_FMT_YUV420P || shape.format == AV_PIX_FMT_YUVJ420P;
    return planar420 && shape.size == m_size && m_size.height() % 2 == 0
        && m_size.width() % directWidthStep == 0;
}

void HRPictureConverter::copy(const AVFrame *picture, HRVideoFrame *target)
{
    for (int y = 0; y < m_size.height(); ++y) {
        const QRgb *source = row(picture, y);
        std::transform(source, source + m_size.width(),
            reinterpret_cast<QRgb *>(target->scanLine(y)),
            [](QRgb pixel) { return pixel | opaque; });
    }
}

bool HRPictureConverter::convertByRgb24(const AVFrame *picture, HRVideoFrame *target)
{
    uint8_t *planes[4] = { m_rgb.get() };
    const int strides[4] = { m_rgbStride };
    const int rows = sws_scale(
        m_scaler.get(), picture->data, picture->linesize, 0, picture->height, planes, strides);
    if (rows <= 0)
        return false;
    for (int y = 0; y < m_size.height(); ++y) {
        unpackRow(m_rgb.get() + qint64(y) * m_rgbStride,
            reinterpret_cast<QRgb *>(target->scanLine(y)), m_size.width());
    }
    return true;
}

} // namespace Hintreels
