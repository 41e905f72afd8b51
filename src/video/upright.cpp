// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/upright_p.h"

#include <cstdlib>

namespace Hintreels {

namespace {

constexpr double mostStretched = 4.0;
constexpr size_t matrixBytes = 9 * sizeof(int32_t);

/// Whole pixels, so that the picture's edges are sharp.
QSize withSquarePixels(const QSize &size, AVRational pixel)
{
    const double aspect = pixel.num > 0 && pixel.den > 0 ? av_q2d(pixel) : 1.0;
    if (aspect > mostStretched || aspect < 1.0 / mostStretched)
        return size;
    return aspect >= 1.0 ? QSize(qRound(size.width() * aspect), size.height())
                         : QSize(size.width(), qRound(size.height() / aspect));
}

double sign(int32_t value)
{
    return value < 0 ? -1.0 : 1.0;
}

/// The quarter turn, mirrored or not, that is nearest to a matrix.
QTransform quarterTurn(const int32_t *matrix)
{
    const auto size = [matrix](int index) { return std::abs(qint64(matrix[index])); };
    if (size(0) + size(4) >= size(1) + size(3))
        return QTransform(sign(matrix[0]), 0, 0, sign(matrix[4]), 0, 0);
    return QTransform(0, sign(matrix[1]), sign(matrix[3]), 0, 0, 0);
}

AVRational pixelOf(const AVStream *stream)
{
    // The file's own word goes before that of its pictures.
    const AVRational byFile = stream->sample_aspect_ratio;
    return byFile.num > 0 ? byFile : stream->codecpar->sample_aspect_ratio;
}

const int32_t *matrixOf(const AVStream *stream)
{
    size_t bytes = 0;
    const uint8_t *matrix = av_stream_get_side_data(stream, AV_PKT_DATA_DISPLAYMATRIX, &bytes);
    return bytes >= matrixBytes ? reinterpret_cast<const int32_t *>(matrix) : nullptr;
}

} // namespace

QTransform uprightTransform(const QSize &size, AVRational pixel, const int32_t *matrix)
{
    if (size.isEmpty())
        return {};
    const QSize square = withSquarePixels(size, pixel);
    const QTransform stretched = QTransform::fromScale(
        double(square.width()) / size.width(), double(square.height()) / size.height());
    const QTransform turned = matrix ? stretched * quarterTurn(matrix) : stretched;
    const QPointF corner = turned.mapRect(QRectF(QPointF(), size)).topLeft();
    return turned * QTransform::fromTranslate(-corner.x(), -corner.y());
}

QTransform uprightTransform(const QSize &size, const AVStream *stream)
{
    return uprightTransform(size, pixelOf(stream), matrixOf(stream));
}

QSize uprightSize(const QSize &size, const QTransform &transform)
{
    return transform.mapRect(QRectF(QPointF(), size)).size().toSize();
}

} // namespace Hintreels
