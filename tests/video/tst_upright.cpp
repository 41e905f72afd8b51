// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/upright_p.h"

#include "video/HRFFmpegHandle_p.h"

#include <QtTest>

extern "C" {
#include <libavutil/display.h>
}

#include <array>
#include <cstring>

using namespace Hintreels;

namespace {

using Matrix = std::array<int32_t, 9>;

Matrix turned(double degrees, bool isMirrored = false)
{
    Matrix matrix;
    av_display_rotation_set(matrix.data(), degrees);
    av_display_matrix_flip(matrix.data(), isMirrored, 0);
    return matrix;
}

} // namespace

Q_DECLARE_METATYPE(Matrix)

class tst_upright : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void transform_turnsByQuarters_data();
    void transform_turnsByQuarters();
    void transform_makesPixelsSquare_data();
    void transform_makesPixelsSquare();
    void transform_stretchesBeforeItTurns();
    void transform_isNone_withoutAPicture();
    void transform_isTheStreams_data();
    void transform_isTheStreams();
};

void tst_upright::transform_turnsByQuarters_data()
{
    constexpr int32_t one = 1 << 16;
    QTest::addColumn<Matrix>("matrix");
    QTest::addColumn<QRect>("firstPixels"); // where four by one of them come to lie
    QTest::newRow("upright") << turned(0) << QRect(0, 0, 4, 1);
    QTest::newRow("a quarter") << turned(90) << QRect(5, 0, 1, 4);
    QTest::newRow("half") << turned(180) << QRect(4, 5, 4, 1);
    QTest::newRow("three quarters") << turned(270) << QRect(0, 4, 1, 4);
    QTest::newRow("mirrored") << turned(0, true) << QRect(4, 0, 4, 1);
    QTest::newRow("mirrored, a quarter") << turned(90, true) << QRect(0, 0, 1, 4);
    QTest::newRow("nearly a quarter") << turned(80) << QRect(5, 0, 1, 4);
    QTest::newRow("a little") << turned(-20) << QRect(0, 0, 4, 1);
    QTest::newRow("nothing at all") << Matrix{} << QRect(0, 0, 4, 1);
    QTest::newRow("larger") << Matrix{ 3 * one, 0, 0, 0, 3 * one, 0, 9, 9, 1 << 30 }
                            << QRect(0, 0, 4, 1);
    constexpr int32_t least = std::numeric_limits<int32_t>::min();
    QTest::newRow("least numbers")
        << Matrix{ least, least, 0, least, least, 0, 0, 0, 0 } << QRect(4, 5, 4, 1);
    QTest::newRow("distorted") << Matrix{ 4, 6, 0, 3, 4, 0, 0, 0, 0 } << QRect(0, 0, 1, 4);
}

/// A picture of eight by six.
void tst_upright::transform_turnsByQuarters()
{
    QFETCH(Matrix, matrix);
    QFETCH(QRect, firstPixels);
    const QSize size(8, 6);
    const QTransform transform = uprightTransform(size, { 0, 1 }, matrix.data());
    QCOMPARE(transform.mapRect(QRectF(0, 0, 4, 1)), QRectF(firstPixels));
    const bool isOnItsSide = firstPixels.height() > 1;
    QCOMPARE(uprightSize(size, transform), isOnItsSide ? size.transposed() : size);
    QCOMPARE(transform.mapRect(QRectF(0, 0, 8, 6)).topLeft(), QPointF());
}

void tst_upright::transform_makesPixelsSquare_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<QSize>("size"); // of 720 by 576 pixels
    QTest::newRow("square") << 1 << 1 << QSize(720, 576);
    QTest::newRow("not known") << 0 << 1 << QSize(720, 576);
    QTest::newRow("nonsense") << 1 << 0 << QSize(720, 576);
    QTest::newRow("below zero") << -1 << 1 << QSize(720, 576);
    QTest::newRow("wide") << 64 << 45 << QSize(1024, 576);
    QTest::newRow("high") << 1 << 2 << QSize(720, 1152);
    QTest::newRow("not a whole number") << 16 << 15 << QSize(768, 576);
    QTest::newRow("as wide as may be") << 4 << 1 << QSize(2880, 576);
    QTest::newRow("not to be believed") << 5 << 1 << QSize(720, 576);
    QTest::newRow("nor that") << 1 << 5 << QSize(720, 576);
}

void tst_upright::transform_makesPixelsSquare()
{
    QFETCH(int, width);
    QFETCH(int, height);
    const QSize size(720, 576);
    QTEST(uprightSize(size, uprightTransform(size, { width, height }, nullptr)), "size");
}

void tst_upright::transform_stretchesBeforeItTurns()
{
    const QTransform transform = uprightTransform({ 100, 50 }, { 2, 1 }, turned(90).data());
    QCOMPARE(uprightSize({ 100, 50 }, transform), QSize(50, 200));
}

void tst_upright::transform_isNone_withoutAPicture()
{
    QVERIFY(uprightTransform({ 0, 0 }, { 2, 1 }, turned(90).data()).isIdentity());
}

void tst_upright::transform_isTheStreams_data()
{
    QTest::addColumn<int>("bytes"); // of the matrix
    QTest::addColumn<int>("byFile"); // the width of pixels one high, 0 for unknown
    QTest::addColumn<int>("byPictures");
    QTest::addColumn<QSize>("size"); // of a picture of 100 by 50
    QTest::newRow("a quarter") << 36 << 0 << 0 << QSize(50, 100);
    QTest::newRow("half a matrix") << 32 << 0 << 0 << QSize(100, 50);
    QTest::newRow("none") << 0 << 0 << 0 << QSize(100, 50);
    QTest::newRow("pixels by the file") << 0 << 2 << 3 << QSize(200, 50);
    QTest::newRow("pixels by the pictures") << 0 << 0 << 3 << QSize(300, 50);
}

void tst_upright::transform_isTheStreams()
{
    QFETCH(int, bytes);
    QFETCH(int, byFile);
    QFETCH(int, byPictures);
    const HRFFmpegHandle<AVFormatContext> file(avformat_alloc_context());
    AVStream *stream = avformat_new_stream(file.get(), nullptr);
    const Matrix matrix = turned(90);
    if (bytes > 0)
        std::memcpy(av_stream_new_side_data(stream, AV_PKT_DATA_DISPLAYMATRIX, size_t(bytes)),
            matrix.data(), size_t(bytes));
    stream->sample_aspect_ratio = { byFile, 1 };
    stream->codecpar->sample_aspect_ratio = { byPictures, 1 };
    QTEST(uprightSize({ 100, 50 }, uprightTransform({ 100, 50 }, stream)), "size");
}

QTEST_APPLESS_MAIN(tst_upright)
#include "tst_upright.moc"
