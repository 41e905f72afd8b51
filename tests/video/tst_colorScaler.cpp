// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/colorScaler_p.h"

#include <QtTest>

using namespace Hintreels;

/// tst_HRPictureConverter looks at the colours of whole pictures.
class tst_colorScaler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void matrixAndRange_areTakenAsFarAsTheyAreNamed_data();
    void matrixAndRange_areTakenAsFarAsTheyAreNamed();
    void scaler_isThere_whereColorsHaveNoModels();
    void scaler_isNull_whereThereIsNone();
};

namespace {

const QSize size(16, 16);

/// One green that 8 bits of YUV code in different ways.
QRgb converted(const HRPictureColors &colors, uint8_t y, uint8_t u, uint8_t v)
{
    const HRFFmpegHandle<SwsContext> scaler
        = makeScaler({ size, AV_PIX_FMT_YUV444P }, { size, AV_PIX_FMT_RGB32 }, colors);
    std::vector<uint8_t> planes[3];
    planes[0].assign(256, y);
    planes[1].assign(256, u);
    planes[2].assign(256, v);
    const uint8_t *source[4] = { planes[0].data(), planes[1].data(), planes[2].data() };
    const int strides[4] = { 16, 16, 16 };
    QImage image(size, QImage::Format_RGB32);
    uint8_t *target[4] = { image.bits() };
    const int stride[4] = { int(image.bytesPerLine()) };
    sws_scale(scaler.get(), source, strides, 0, size.height(), target, stride);
    return image.pixel(8, 8);
}

} // namespace

void tst_colorScaler::matrixAndRange_areTakenAsFarAsTheyAreNamed_data()
{
    QTest::addColumn<int>("matrix");
    QTest::addColumn<int>("range");
    QTest::addColumn<QVector<int>>("code"); // of (0, 192, 0)
    using Code = QVector<int>;
    const int none = AVCOL_SPC_UNSPECIFIED;
    const int any = AVCOL_RANGE_UNSPECIFIED;
    QTest::newRow("neither") << none << any << Code{ 113, 72, 58 };
    QTest::newRow("matrix") << int(AVCOL_SPC_BT709) << any << Code{ 134, 63, 52 };
    QTest::newRow("range") << none << int(AVCOL_RANGE_JPEG) << Code{ 113, 64, 48 };
    QTest::newRow("both") << int(AVCOL_SPC_BT709) << int(AVCOL_RANGE_JPEG) << Code{ 137, 54, 41 };
}

void tst_colorScaler::matrixAndRange_areTakenAsFarAsTheyAreNamed()
{
    QFETCH(int, matrix);
    QFETCH(int, range);
    QFETCH(QVector<int>, code);
    const QColor color(converted({ AVColorSpace(matrix), AVColorRange(range) }, uint8_t(code[0]),
        uint8_t(code[1]), uint8_t(code[2])));
    const bool isGreen = color.red() < 6 && qAbs(color.green() - 192) < 6 && color.blue() < 6;
    QVERIFY2(isGreen, qPrintable(color.name()));
}

void tst_colorScaler::scaler_isThere_whereColorsHaveNoModels()
{
    const HRPictureColors colors{ AVCOL_SPC_BT709, AVCOL_RANGE_JPEG };
    QVERIFY(makeScaler({ size, AV_PIX_FMT_RGB24 }, { size, AV_PIX_FMT_RGB32 }, colors));
    QVERIFY(makeScaler({ size, AV_PIX_FMT_GRAY8 }, { size, AV_PIX_FMT_GRAY8 }, colors));
}

void tst_colorScaler::scaler_isNull_whereThereIsNone()
{
    const HRPictureColors colors{ AVCOL_SPC_BT709, AVCOL_RANGE_JPEG };
    QVERIFY(!makeScaler({ size, AV_PIX_FMT_VAAPI }, { size, AV_PIX_FMT_RGB32 }, colors));
}

QTEST_APPLESS_MAIN(tst_colorScaler)
#include "tst_colorScaler.moc"
