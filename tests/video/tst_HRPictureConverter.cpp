// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRPictureConverter_p.h"

#include <QElapsedTimer>
#include <QtTest>

#include <cstring>
#include <random>

extern "C" {
#include <libavutil/pixdesc.h>
}

using namespace Hintreels;

class tst_HRPictureConverter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void convert_equalsTheRgb24Conversion_data();
    void convert_equalsTheRgb24Conversion();
    void convert_understandsThePicturesColors_data();
    void convert_understandsThePicturesColors();
    void convert_takesAllPicturesAlike_asARule();
    void convert_followsEachChange_data();
    void convert_followsEachChange();
    void convert_keepsTheOpenedSize_whenPicturesChange();
    void convert_takesTheMemory_thatNobodyHolds();
    void convert_leavesOpaquePictures_whereTheyAre_data();
    void convert_leavesOpaquePictures_whereTheyAre();
    void convert_sharesNoMemory_toWriteTo();
    void convert_takesPictures_thatStandOnTheirHead();
    void convert_scalesPicturesOf32Bits_ofAnotherSize();
    void convert_refusesPictures_thatNobodyCanConvert();
    void allocate_refuses_data();
    void allocate_refuses();
    void prepare_refuses_data();
    void prepare_refuses();
};

namespace {

struct ReadyConverter : HRPictureConverter
{
    ReadyConverter(const QSize &size, AVPixelFormat format)
    {
        if (!allocate(size) || !prepare({ size, format }))
            qFatal("no memory for a converter");
    }
};

HRFFmpegHandle<AVFrame> noise(AVPixelFormat format, const QSize &size)
{
    HRFFmpegHandle<AVFrame> picture(av_frame_alloc());
    picture->format = format;
    picture->width = size.width();
    picture->height = size.height();
    if (av_frame_get_buffer(picture.get(), 0) < 0)
        qFatal("no memory for a picture");
    const int depth = av_pix_fmt_desc_get(format)->comp[0].depth;
    std::mt19937 random(7);
    for (int plane = 0; plane < AV_NUM_DATA_POINTERS && picture->buf[plane]; ++plane) {
        AVBufferRef *buffer = picture->buf[plane];
        for (size_t i = 0; i + 1 < buffer->size; i += 2) {
            const unsigned value = random() & (depth > 8 ? (1u << depth) - 1 : 0xffffu);
            buffer->data[i] = uint8_t(value);
            buffer->data[i + 1] = uint8_t(value >> 8);
        }
    }
    return picture;
}

/// One colour, (0, 192, 0), as a matrix codes it in a range.
/// @param red and blue are their shares in the luminance
HRFFmpegHandle<AVFrame> green(
    AVPixelFormat format, const QSize &size, double red, double blue, bool isFull)
{
    HRFFmpegHandle<AVFrame> picture = noise(format, size);
    const double value = 192 / 255.0;
    const double luma = (1 - red - blue) * value;
    const double steps = isFull ? 255 : 224;
    const int y = qRound(isFull ? 255 * luma : 16 + 219 * luma);
    const int u = qRound(128 + steps * -luma / (2 * (1 - blue)));
    const int v = qRound(128 + steps * -luma / (2 * (1 - red)));
    const auto fill = [&](int plane, int even, int odd) {
        const int rows
            = plane == 0 || format == AV_PIX_FMT_YUV444P ? size.height() : size.height() / 2;
        for (int i = 0; i < rows * picture->linesize[plane]; ++i)
            picture->data[plane][i] = uint8_t(i % 2 == 0 ? even : odd);
    };
    const bool isInterleaved = format == AV_PIX_FMT_NV12;
    fill(0, y, y);
    fill(1, u, isInterleaved ? v : u);
    if (!isInterleaved)
        fill(2, v, v);
    return picture;
}

/// Of 32 bits a pixel.
HRFFmpegHandle<AVFrame> opaqueNoise(AVPixelFormat format, const QSize &size)
{
    HRFFmpegHandle<AVFrame> picture = noise(format, size);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            picture->data[0][y * picture->linesize[0] + 4 * x + 3] = 255;
    return picture;
}

/// What the conversion has to give: through packed RGB24, in a buffer with room to spare.
QImage reference(const AVFrame *picture, const QSize &size)
{
    const int stride = (size.width() + 63) / 64 * 64 * 3;
    std::vector<uint8_t> rgb(size_t(stride) * size.height() + 256);
    const HRFFmpegHandle<SwsContext> scaler(sws_getCachedContext(nullptr, picture->width,
        picture->height, AVPixelFormat(picture->format), size.width(), size.height(),
        AV_PIX_FMT_RGB24, SWS_BICUBIC, nullptr, nullptr, nullptr));
    uint8_t *planes[4] = { rgb.data() };
    const int strides[4] = { stride };
    sws_scale(scaler.get(), picture->data, picture->linesize, 0, picture->height, planes, strides);
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const uint8_t *pixel = rgb.data() + y * stride + 3 * x;
            image.setPixel(x, y, qRgb(pixel[0], pixel[1], pixel[2]));
        }
    }
    return image;
}

} // namespace

void tst_HRPictureConverter::convert_equalsTheRgb24Conversion_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QSize>("size");
    const QList<AVPixelFormat> formats{ AV_PIX_FMT_YUV420P, AV_PIX_FMT_YUVJ420P, AV_PIX_FMT_YUV422P,
        AV_PIX_FMT_YUV444P, AV_PIX_FMT_YUV411P, AV_PIX_FMT_YUYV422, AV_PIX_FMT_NV12,
        AV_PIX_FMT_YUVA420P, AV_PIX_FMT_YUV420P10, AV_PIX_FMT_GRAY8, AV_PIX_FMT_RGB24,
        AV_PIX_FMT_BGRA, AV_PIX_FMT_GBRP, AV_PIX_FMT_RGB555 };
    const QList<QSize> sizes{ { 1, 1 }, { 2, 2 }, { 8, 6 }, { 15, 8 }, { 16, 7 }, { 16, 16 },
        { 18, 10 }, { 33, 17 }, { 48, 32 }, { 50, 38 }, { 64, 48 }, { 77, 54 }, { 144, 90 },
        { 1008, 6 } };
    for (AVPixelFormat format : formats) {
        for (const QSize &size : sizes) {
            QTest::addRow("%s %dx%d", av_get_pix_fmt_name(format), size.width(), size.height())
                << int(format) << size;
        }
    }
}

void tst_HRPictureConverter::convert_equalsTheRgb24Conversion()
{
    QFETCH(int, format);
    QFETCH(QSize, size);
    const HRFFmpegHandle<AVFrame> picture = noise(AVPixelFormat(format), size);
    ReadyConverter converter(size, AVPixelFormat(format));
    const HRVideoFrame converted = converter.convert(picture.get());
    QCOMPARE(converted.format(), QImage::Format_RGB32);
    QCOMPARE(static_cast<const QImage &>(converted), reference(picture.get(), size));
    QCOMPARE(qAlpha(reinterpret_cast<const QRgb *>(converted.constBits())[0]), 255);

    // A picture that names no colours.
    converter.setColorsByFile(true);
    QCOMPARE(static_cast<const QImage &>(converter.convert(picture.get())), converted);
}

void tst_HRPictureConverter::convert_understandsThePicturesColors_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("matrix");
    QTest::addColumn<double>("red"); // its share in the luminance
    QTest::addColumn<double>("blue");
    for (int format : { AV_PIX_FMT_YUV420P, AV_PIX_FMT_YUV444P, AV_PIX_FMT_NV12 }) {
        const char *name = av_get_pix_fmt_name(AVPixelFormat(format));
        QTest::addRow("BT.709, %s", name) << format << int(AVCOL_SPC_BT709) << 0.2126 << 0.0722;
        QTest::addRow("BT.601, %s", name) << format << int(AVCOL_SPC_SMPTE170M) << 0.299 << 0.114;
        QTest::addRow("BT.2020, %s", name)
            << format << int(AVCOL_SPC_BT2020_NCL) << 0.2627 << 0.0593;
        QTest::addRow("not named, %s", name)
            << format << int(AVCOL_SPC_UNSPECIFIED) << 0.299 << 0.114;
    }
}

void tst_HRPictureConverter::convert_understandsThePicturesColors()
{
    QFETCH(int, format);
    QFETCH(int, matrix);
    QFETCH(double, red);
    QFETCH(double, blue);
    const QSize size(64, 48);
    ReadyConverter converter(size, AVPixelFormat(format));
    converter.setColorsByFile(true);
    for (AVColorRange range : { AVCOL_RANGE_MPEG, AVCOL_RANGE_JPEG, AVCOL_RANGE_MPEG }) {
        const HRFFmpegHandle<AVFrame> picture
            = green(AVPixelFormat(format), size, red, blue, range == AVCOL_RANGE_JPEG);
        picture->colorspace = AVColorSpace(matrix);
        picture->color_range = range;
        const QRgb pixel = converter.convert(picture.get()).pixel(32, 24);
        QVERIFY2(qAbs(qRed(pixel)) < 4 && qAbs(qGreen(pixel) - 192) < 4 && qAbs(qBlue(pixel)) < 4,
            qPrintable(QColor(pixel).name()));
    }
}

void tst_HRPictureConverter::convert_takesAllPicturesAlike_asARule()
{
    const QSize size(64, 48);
    ReadyConverter converter(size, AV_PIX_FMT_YUV420P);
    const HRFFmpegHandle<AVFrame> picture = noise(AV_PIX_FMT_YUV420P, size);
    const QImage expected = converter.convert(picture.get());
    picture->colorspace = AVCOL_SPC_BT709;
    picture->color_range = AVCOL_RANGE_JPEG;
    QCOMPARE(static_cast<const QImage &>(converter.convert(picture.get())), expected);
}

void tst_HRPictureConverter::convert_followsEachChange_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("isHeld");
    for (const QSize &size : { QSize(16, 2), QSize(32, 16), QSize(48, 18), QSize(64, 54) }) {
        QTest::addRow("%dx%d, held", size.width(), size.height()) << size << true;
        QTest::addRow("%dx%d", size.width(), size.height()) << size << false;
    }
}

/// One sample after the other changes, in each plane, as do the pictures of a recording.
void tst_HRPictureConverter::convert_followsEachChange()
{
    QFETCH(QSize, size);
    QFETCH(bool, isHeld);
    ReadyConverter converter(size, AV_PIX_FMT_YUV420P);
    HRFFmpegHandle<AVFrame> picture = noise(AV_PIX_FMT_YUV420P, size);
    HRVideoFrame held;
    for (int plane = 0; plane < 3; ++plane) {
        const QSize samples = plane == 0 ? size : size / 2;
        for (int y = 0; y < samples.height(); ++y) {
            // As from a decoder: each picture has memory of its own.
            HRFFmpegHandle<AVFrame> next(av_frame_clone(picture.get()));
            QVERIFY(av_frame_make_writable(next.get()) >= 0);
            picture = std::move(next);
            picture->data[plane][y * picture->linesize[plane] + y % samples.width()] ^= 0x80;
            const HRVideoFrame converted = converter.convert(picture.get());
            QCOMPARE(static_cast<const QImage &>(converted), reference(picture.get(), size));
            held = isHeld ? converted : HRVideoFrame();
        }
    }
}

void tst_HRPictureConverter::convert_keepsTheOpenedSize_whenPicturesChange()
{
    const QSize opened(64, 48);
    ReadyConverter converter(opened, AV_PIX_FMT_YUV420P);
    struct Change
    {
        AVPixelFormat format;
        QSize size;
    };
    for (const Change &change :
        { Change{ AV_PIX_FMT_YUV420P, { 64, 48 } }, Change{ AV_PIX_FMT_YUV420P, { 96, 20 } },
            Change{ AV_PIX_FMT_NV12, { 10, 10 } }, Change{ AV_PIX_FMT_YUV420P, { 64, 48 } } }) {
        const HRFFmpegHandle<AVFrame> picture = noise(change.format, change.size);
        const HRVideoFrame converted = converter.convert(picture.get());
        QCOMPARE(static_cast<const QImage &>(converted), reference(picture.get(), opened));
    }
}

void tst_HRPictureConverter::convert_takesTheMemory_thatNobodyHolds()
{
    const QSize size(64, 48);
    ReadyConverter converter(size, AV_PIX_FMT_YUV420P);
    const HRFFmpegHandle<AVFrame> picture = noise(AV_PIX_FMT_YUV420P, size);
    HRVideoFrame held = converter.convert(picture.get());
    const uchar *const heldMemory = held.constBits();
    const QImage before = held.copy();
    std::memset(picture->data[0], 0, size_t(picture->linesize[0]));
    const uchar *const otherMemory = converter.convert(picture.get()).constBits();
    QVERIFY(otherMemory != heldMemory);
    QCOMPARE(static_cast<const QImage &>(held), before);
    held = HRVideoFrame();
    QCOMPARE(converter.convert(picture.get()).constBits(), otherMemory);
}

void tst_HRPictureConverter::convert_leavesOpaquePictures_whereTheyAre_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("alpha");
    QTest::addColumn<bool>("isShared");
    QTest::newRow("opaque") << int(AV_PIX_FMT_BGRA) << 255 << true;
    QTest::newRow("a pixel nearly opaque") << int(AV_PIX_FMT_BGRA) << 254 << false;
    QTest::newRow("without alpha, filled up") << int(AV_PIX_FMT_BGR0) << 255 << true;
    QTest::newRow("without alpha") << int(AV_PIX_FMT_BGR0) << 0 << false;
}

void tst_HRPictureConverter::convert_leavesOpaquePictures_whereTheyAre()
{
    QFETCH(int, format);
    QFETCH(int, alpha);
    QFETCH(bool, isShared);
    const QSize size(50, 38);
    ReadyConverter converter(size, AVPixelFormat(format));
    HRFFmpegHandle<AVFrame> picture = opaqueNoise(AVPixelFormat(format), size);
    picture->data[0][37 * picture->linesize[0] + 49 * 4 + 3] = uint8_t(alpha);
    const QImage expected = reference(picture.get(), size);

    const HRVideoFrame converted = converter.convert(picture.get());
    QCOMPARE(converted.constBits() == picture->data[0], isShared);
    picture.reset();
    converter.close();
    QCOMPARE(static_cast<const QImage &>(converted), expected);
    QCOMPARE(qAlpha(reinterpret_cast<const QRgb *>(converted.constScanLine(37))[49]), 255);
}

/// The decoder goes on from what it has given out.
void tst_HRPictureConverter::convert_sharesNoMemory_toWriteTo()
{
    const QSize size(50, 38);
    ReadyConverter converter(size, AV_PIX_FMT_BGRA);
    const HRFFmpegHandle<AVFrame> picture = opaqueNoise(AV_PIX_FMT_BGRA, size);
    const QImage expected = reference(picture.get(), size);
    HRVideoFrame converted = converter.convert(picture.get());
    converted.fill(Qt::red);
    QCOMPARE(static_cast<const QImage &>(converter.convert(picture.get())), expected);
}

/// Rows may come from the last one up.
void tst_HRPictureConverter::convert_takesPictures_thatStandOnTheirHead()
{
    const QSize size(50, 38);
    ReadyConverter converter(size, AV_PIX_FMT_BGRA);
    const HRFFmpegHandle<AVFrame> picture = opaqueNoise(AV_PIX_FMT_BGRA, size);
    const QImage expected = reference(picture.get(), size).mirrored();
    picture->data[0] += (size.height() - 1) * picture->linesize[0];
    picture->linesize[0] = -picture->linesize[0];
    QCOMPARE(static_cast<const QImage &>(converter.convert(picture.get())), expected);
}

void tst_HRPictureConverter::convert_scalesPicturesOf32Bits_ofAnotherSize()
{
    const QSize opened(64, 48);
    ReadyConverter converter(opened, AV_PIX_FMT_BGRA);
    const HRFFmpegHandle<AVFrame> picture = opaqueNoise(AV_PIX_FMT_BGRA, QSize(32, 24));
    const HRVideoFrame converted = converter.convert(picture.get());
    QCOMPARE(static_cast<const QImage &>(converted), reference(picture.get(), opened));
}

void tst_HRPictureConverter::convert_refusesPictures_thatNobodyCanConvert()
{
    const QSize size(64, 48);
    ReadyConverter converter(size, AV_PIX_FMT_YUV420P);
    const HRFFmpegHandle<AVFrame> picture = noise(AV_PIX_FMT_YUV420P, size);
    picture->format = AV_PIX_FMT_VAAPI;
    QVERIFY(converter.convert(picture.get()).isNull());
}

void tst_HRPictureConverter::allocate_refuses_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("nothing") << QSize(0, 0);
    QTest::newRow("no height") << QSize(10, 0);
    QTest::newRow("30000 x 30000") << QSize(30000, 30000);
    QTest::newRow("product above 32 bits") << QSize(1 << 20, 1 << 20);
}

void tst_HRPictureConverter::allocate_refuses()
{
    QFETCH(QSize, size);
    HRPictureConverter converter;
    QVERIFY(!converter.allocate(size));
}

void tst_HRPictureConverter::prepare_refuses_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QSize>("size");
    QTest::newRow("no format") << int(AV_PIX_FMT_NONE) << QSize(64, 48);
    QTest::newRow("no such format") << int(AV_PIX_FMT_NB) << QSize(64, 48);
    QTest::newRow("memory of a device") << int(AV_PIX_FMT_VAAPI) << QSize(64, 48);
    QTest::newRow("no size") << int(AV_PIX_FMT_YUV420P) << QSize(0, 48);
}

void tst_HRPictureConverter::prepare_refuses()
{
    QFETCH(int, format);
    QFETCH(QSize, size);
    HRPictureConverter converter;
    QVERIFY(converter.allocate(QSize(64, 48)));
    QVERIFY(!converter.prepare({ size, AVPixelFormat(format) }));
}

QTEST_APPLESS_MAIN(tst_HRPictureConverter)
#include "tst_HRPictureConverter.moc"
