// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/pictureLight_p.h"

#include <QtTest>

using namespace Hintreels;

class tst_pictureLight : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lightOf_followsTheColor_data();
    void lightOf_followsTheColor();
    void lightOf_isTheMeanOfThePart_data();
    void lightOf_isTheMeanOfThePart();
};

// Luminances are those of the contrast ratio, distances by hand from the matrix of sRGB.
void tst_pictureLight::lightOf_followsTheColor_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<double>("luminance");
    QTest::addColumn<double>("distanceToRed");
    QTest::addColumn<bool>("isRed");
    QTest::newRow("white") << QColor(255, 255, 255) << 1.0 << 0.259 << false;
    QTest::newRow("black") << QColor(0, 0, 0) << 0.0 << 0.259 << false;
    QTest::newRow("grey") << QColor(128, 128, 128) << 0.216 << 0.259 << false;
    QTest::newRow("red") << QColor(255, 0, 0) << 0.213 << 0.0 << true;
    QTest::newRow("dark red") << QColor(80, 0, 0) << 0.017 << 0.0 << true;
    QTest::newRow("green") << QColor(0, 255, 0) << 0.715 << 0.328 << false;
    QTest::newRow("blue") << QColor(0, 0, 255) << 0.072 << 0.457 << false;
    QTest::newRow("brick") << QColor(255, 120, 120) << 0.361 << 0.142 << false;
}

void tst_pictureLight::lightOf_followsTheColor()
{
    QFETCH(QColor, color);
    QFETCH(double, luminance);
    QFETCH(double, distanceToRed);
    QImage picture(20, 10, QImage::Format_RGB32);
    picture.fill(color);
    const HRLight light = lightOf(picture, picture.rect());
    QVERIFY(qAbs(double(light.luminance) - luminance) < 0.001);
    QVERIFY2(qAbs(double(light.distanceToRed) - distanceToRed) < 0.002,
        qPrintable(QString::number(double(light.distanceToRed))));
    QTEST(light.isSaturatedRed, "isRed");
}

void tst_pictureLight::lightOf_isTheMeanOfThePart_data()
{
    QTest::addColumn<QRect>("part");
    QTest::addColumn<double>("luminance");
    QTest::newRow("one pixel of the dark half") << QRect(31, 0, 1, 1) << 0.0;
    QTest::newRow("one pixel of the light half") << QRect(32, 47, 1, 1) << 1.0;
    QTest::newRow("the light half") << QRect(32, 0, 32, 48) << 1.0;
    QTest::newRow("both") << QRect(0, 0, 64, 48) << 0.5;
    QTest::newRow("a small part of both") << QRect(30, 10, 4, 3) << 0.5;
}

void tst_pictureLight::lightOf_isTheMeanOfThePart()
{
    QFETCH(QRect, part);
    QImage picture(64, 48, QImage::Format_RGB32);
    picture.fill(Qt::black);
    for (int y = 0; y < 48; ++y)
        std::fill_n(reinterpret_cast<QRgb *>(picture.scanLine(y)) + 32, 32, 0xffffffffU);
    QFETCH(double, luminance);
    QVERIFY(qAbs(double(lightOf(picture, part).luminance) - luminance) < 0.001);
}

QTEST_APPLESS_MAIN(tst_pictureLight)
#include "tst_pictureLight.moc"
