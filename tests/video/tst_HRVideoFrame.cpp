// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRVideoFrame.h"

#include <QtTest>

#include <limits>

using namespace Hintreels;

class tst_HRVideoFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaultFrame_isNullAtTimeZero();
    void construction_convertsWholeSeconds();
    void construction_sharesTheImage();
    void copy_sharesPixelsAndKeepsTime();
    void assignment_takesImageAndTime();
    void damage_isForgotten_whenPixelsChange();
    void construction_yieldsNull_whenSizeCannotBeAllocated();
};

void tst_HRVideoFrame::defaultFrame_isNullAtTimeZero()
{
    const HRVideoFrame frame;
    QVERIFY(frame.isNull());
    QCOMPARE(frame.pts(), 0.0);
}

void tst_HRVideoFrame::construction_convertsWholeSeconds()
{
    const HRVideoFrame frame(4, 3, QImage::Format_RGB32, 7);
    QCOMPARE(frame.pts(), 7.0);
    QCOMPARE(frame.size(), QSize(4, 3));
    QCOMPARE(frame.format(), QImage::Format_RGB32);
}

void tst_HRVideoFrame::construction_sharesTheImage()
{
    QImage image(4, 3, QImage::Format_RGB32);
    image.fill(Qt::red);
    const HRVideoFrame frame(image, 2);
    QCOMPARE(frame.constBits(), image.constBits());
    QCOMPARE(frame.pts(), 2.0);
}

void tst_HRVideoFrame::copy_sharesPixelsAndKeepsTime()
{
    HRVideoFrame frame(4, 3, QImage::Format_RGB32, 0);
    frame.fill(Qt::red);
    frame.setPts(0.5);
    const HRVideoFrame copy(frame);
    QCOMPARE(copy.constBits(), static_cast<const HRVideoFrame &>(frame).constBits());
    QCOMPARE(copy.pts(), 0.5);

    frame.fill(Qt::blue);
    QCOMPARE(copy.pixelColor(0, 0), QColor(Qt::red));
}

void tst_HRVideoFrame::assignment_takesImageAndTime()
{
    HRVideoFrame frame(4, 3, QImage::Format_RGB32, 9);
    frame.fill(Qt::red);
    HRVideoFrame other;
    other = frame;
    QCOMPARE(other.pts(), 9.0);
    QCOMPARE(static_cast<const QImage &>(other), static_cast<const QImage &>(frame));
}

void tst_HRVideoFrame::damage_isForgotten_whenPixelsChange()
{
    HRVideoFrame frame(4, 3, QImage::Format_RGB32, 0);
    QCOMPARE(frame.damageBase(), qint64(0));
    frame.setDamage(7, QRect(1, 1, 2, 2));
    HRVideoFrame copy(frame);
    QCOMPARE(copy.damageBase(), qint64(7));
    QCOMPARE(copy.damage(), QRegion(1, 1, 2, 2));
    copy.fill(Qt::red);
    QCOMPARE(copy.damageBase(), qint64(0));
    QCOMPARE(frame.damageBase(), qint64(7));
}

void tst_HRVideoFrame::construction_yieldsNull_whenSizeCannotBeAllocated()
{
    QVERIFY(HRVideoFrame(std::numeric_limits<int>::max(), 1, QImage::Format_RGB32, 0).isNull());
}

QTEST_APPLESS_MAIN(tst_HRVideoFrame)
#include "tst_HRVideoFrame.moc"
