// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRDirectConverter_p.h"

#include <cstring>

namespace Hintreels {

namespace {

// Even, since two rows share their colour.
constexpr int bandRows = 16;

/// The rows of a plane at the row @p top of its picture: those of colour are half as many.
const uint8_t *rows(const AVFrame *picture, int plane, int top)
{
    return picture->data[plane] + qint64(plane == 0 ? top : top / 2) * picture->linesize[plane];
}

bool areAlike(const AVFrame *a, const AVFrame *b, int plane, int top, const QSize &band)
{
    const QSize size = plane == 0 ? band : QSize((band.width() + 1) / 2, band.height() / 2);
    const uint8_t *rowOfA = rows(a, plane, top);
    const uint8_t *rowOfB = rows(b, plane, top);
    for (int y = 0; y < size.height(); ++y) {
        if (std::memcmp(rowOfA, rowOfB, size_t(size.width())) != 0)
            return false;
        rowOfA += a->linesize[plane];
        rowOfB += b->linesize[plane];
    }
    return true;
}

} // namespace

bool HRDirectConverter::prepare(const HRPictureShape &shape, const HRPictureColors &colors)
{
    m_band = QSize(shape.size.width(), qMin(bandRows, shape.size.height()));
    m_scaler = makeScaler({ m_band, shape.format }, { m_band, AV_PIX_FMT_RGB32 }, colors);
    m_last.reset(av_frame_alloc());
    return m_scaler && m_last;
}

bool HRDirectConverter::convert(const AVFrame *picture, bool holdsLast, HRVideoFrame *target)
{
    bool isConverted = true;
    const qint64 base = holdsLast ? target->cacheKey() : 0;
    QRegion damage;
    for (int y = 0; y < picture->height; y += m_band.height()) {
        // The last band may share rows with the one before.
        const int top = qMin(y, picture->height - m_band.height());
        if (holdsLast && isLikeLast(picture, top))
            continue;
        isConverted = convertBand(picture, top, target) && isConverted;
        damage += QRect(QPoint(0, top), m_band);
    }
    target->setDamage(base, damage);
    av_frame_unref(m_last.get());
    if (isConverted)
        av_frame_ref(m_last.get(), picture); // where it fails, the next one is converted whole
    return isConverted;
}

void HRDirectConverter::close()
{
    m_last.reset();
    m_scaler.reset();
}

bool HRDirectConverter::convertBand(const AVFrame *picture, int top, HRVideoFrame *target)
{
    const uint8_t *planes[4]
        = { rows(picture, 0, top), rows(picture, 1, top), rows(picture, 2, top) };
    uint8_t *result[4] = { target->scanLine(top) };
    const int stride[4] = { int(target->bytesPerLine()) };
    return sws_scale(m_scaler.get(), planes, picture->linesize, 0, m_band.height(), result, stride)
        > 0;
}

bool HRDirectConverter::isLikeLast(const AVFrame *picture, int top) const
{
    const AVFrame *last = m_last.get();
    return last->data[0] && areAlike(picture, last, 0, top, m_band)
        && areAlike(picture, last, 1, top, m_band) && areAlike(picture, last, 2, top, m_band);
}

} // namespace Hintreels
