// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRVideoFrameCache.h"

#include <QtTest>

#include <limits>

using namespace Hintreels;

class tst_HRVideoFrameCache : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newCache_isEmpty();
    void frame_returnsNull_whenEmpty();
    void frame_returnsPicturesInOrder();
    void frame_returnsNull_beyondTheLast();
    void addFrame_keepsPixels_whenTheCallerOverwritesItsOwn();
};

namespace {

HRVideoFrame filled(Qt::GlobalColor color, double pts)
{
    HRVideoFrame frame(5, 4, QImage::Format_RGB32, 0);
    frame.fill(color);
    frame.setPts(pts);
    return frame;
}

} // namespace

void tst_HRVideoFrameCache::newCache_isEmpty()
{
    HRVideoFrameCache cache("file:///clip.mp4");
    QCOMPARE(cache.length(), size_t(0));
}

void tst_HRVideoFrameCache::frame_returnsNull_whenEmpty()
{
    HRVideoFrameCache cache("x");
    QVERIFY(cache.frame(0).isNull());
}

void tst_HRVideoFrameCache::frame_returnsPicturesInOrder()
{
    HRVideoFrameCache cache("x");
    cache.addFrame(filled(Qt::red, 0.0));
    cache.addFrame(filled(Qt::green, 0.04));
    QCOMPARE(cache.length(), size_t(2));
    QCOMPARE(cache.frame(0).pixelColor(0, 0), QColor(Qt::red));
    QCOMPARE(cache.frame(1).pixelColor(0, 0), QColor(Qt::green));
    QCOMPARE(cache.frame(1).pts(), 0.04);
}

void tst_HRVideoFrameCache::frame_returnsNull_beyondTheLast()
{
    HRVideoFrameCache cache("x");
    cache.addFrame(filled(Qt::red, 0.0));
    QVERIFY(cache.frame(1).isNull());
    QVERIFY(cache.frame(std::numeric_limits<size_t>::max()).isNull());
}

void tst_HRVideoFrameCache::addFrame_keepsPixels_whenTheCallerOverwritesItsOwn()
{
    HRVideoFrameCache cache("x");
    HRVideoFrame frame = filled(Qt::red, 0.0);
    cache.addFrame(frame);
    frame.scanLine(0)[0] = 1;
    frame.fill(Qt::blue);
    QCOMPARE(cache.frame(0).pixelColor(0, 0), QColor(Qt::red));
}

QTEST_APPLESS_MAIN(tst_HRVideoFrameCache)
#include "tst_HRVideoFrameCache.moc"
