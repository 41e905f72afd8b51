// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRCompactFrameCache_p.h"

#include "support/TestClip.h"
#include "video/HRClip_p.h"

#include <QtTest>

#include <random>

using namespace Hintreels;

class tst_HRCompactFrameCache : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void frames_equalThePlainCache_data();
    void frames_equalThePlainCache();
    void frames_equalThePlainCache_ofRealClips_data();
    void frames_equalThePlainCache_ofRealClips();
    void frames_equalThePlainCache_asTheyAreDecoded_data();
    void frames_equalThePlainCache_asTheyAreDecoded();
    void frames_equalThePlainCache_whicheverPixelChanges_data();
    void frames_equalThePlainCache_whicheverPixelChanges();
    void addFrame_keepsThePicture_fromAQuarterOfNewPixelsOn_data();
    void addFrame_keepsThePicture_fromAQuarterOfNewPixelsOn();
    void addFrame_takesNoTileForNew_whereOneBelowHasChangedBefore();
    void addFrame_trustsDamage_onlyOfThePictureBefore();
    void frames_equalThePlainCache_whenSizeAndFormatChange();
    void frame_returnsNull_beyondTheLast();
    void frame_sharesPixels_whenReadAgain();
    void frame_handsOutPixels_thatLaterReadsLeaveAlone();
    void frame_isMadeOfTheOneBefore_thatNobodyHolds();
    void frame_isMadeOfTheOneBeforeThat_whenTheLastIsHeld();
    void addFrame_keepsPixels_whenTheCallerOverwritesItsOwn();
};

namespace {

using Pictures = std::vector<HRVideoFrame>;

std::mt19937 seeded()
{
    return std::mt19937(20260601);
}

/// Changes a few rectangles anywhere, down to one pixel, and sometimes nothing at all.
void scribble(HRVideoFrame *picture, std::mt19937 *random)
{
    const int count = int((*random)() % 4);
    for (int i = 0; i < count; ++i) {
        const QRect area(int((*random)() % picture->width()), int((*random)() % picture->height()),
            int((*random)() % 9) + 1, int((*random)() % 9) + 1);
        const QRect inside = area & picture->rect();
        for (int y = inside.top(); y <= inside.bottom(); ++y)
            for (int x = inside.left(); x <= inside.right(); ++x)
                reinterpret_cast<QRgb *>(picture->scanLine(y))[x] = (*random)() | 0xff000000u;
    }
}

Pictures scribbles(const QSize &size, int count)
{
    std::mt19937 random = seeded();
    HRVideoFrame picture(size.width(), size.height(), QImage::Format_RGB32, 0);
    picture.fill(Qt::gray);
    Pictures pictures;
    for (int i = 0; i < count; ++i) {
        picture.setPts(i * 0.04);
        pictures.push_back(picture);
        scribble(&picture, &random);
    }
    return pictures;
}

/// Each differs from the one before in one pixel.
Pictures withMovingDot(const QSize &size, int count)
{
    HRVideoFrame picture(size.width(), size.height(), QImage::Format_RGB32, 0);
    picture.fill(Qt::gray);
    Pictures pictures;
    for (int i = 0; i < count; ++i) {
        picture.setPixel(i, i, qRgb(255, 0, 0));
        pictures.push_back(picture);
    }
    return pictures;
}

/// Reads both caches in a random order, each picture several times.
void compareCaches(HRVideoFrameCache &plain, HRCompactFrameCache &compact)
{
    QCOMPARE(compact.length(), plain.length());
    std::mt19937 random = seeded();
    for (size_t i = 0; i < 4 * plain.length(); ++i) {
        const size_t index = random() % (plain.length() + 1);
        const HRVideoFrame expected = plain.frame(index);
        const HRVideoFrame actual = compact.frame(index);
        QCOMPARE(actual.pts(), expected.pts());
        QCOMPARE(actual.format(), expected.format());
        QVERIFY2(static_cast<const QImage &>(actual) == static_cast<const QImage &>(expected),
            qPrintable(QString("picture %1").arg(index)));
    }
}

void compareCaches(const Pictures &pictures)
{
    HRVideoFrameCache plain("x");
    HRCompactFrameCache compact("x");
    for (const HRVideoFrame &picture : pictures) {
        plain.addFrame(picture);
        compact.addFrame(picture);
    }
    compareCaches(plain, compact);
}

/// Writes a clip of scribbles.
QString write(const QTemporaryDir &directory, const QByteArray &codec, const QSize &size)
{
    TestClip clip;
    clip.codec = codec;
    clip.size = size;
    clip.options = "";
    clip.pictures = 12;
    const Pictures drawn = scribbles(size, clip.pictures);
    return clip.write(directory.filePath("clip.mkv"),
        [&drawn](const QSize &, int number) { return drawn[size_t(number)]; });
}

} // namespace

void tst_HRCompactFrameCache::frames_equalThePlainCache_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("one pixel") << QSize(1, 1);
    QTest::newRow("below a tile") << QSize(15, 7);
    QTest::newRow("one tile") << QSize(16, 16);
    QTest::newRow("a pixel more than tiles") << QSize(33, 17);
    QTest::newRow("whole tiles") << QSize(64, 48);
    QTest::newRow("divided by no tile") << QSize(101, 37);
    QTest::newRow("tall") << QSize(3, 200);
}

void tst_HRCompactFrameCache::frames_equalThePlainCache()
{
    QFETCH(QSize, size);
    compareCaches(scribbles(size, 40));
}

void tst_HRCompactFrameCache::frames_equalThePlainCache_ofRealClips_data()
{
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<QSize>("size");
    QTest::newRow("H.264") << QByteArray("libx264") << QSize(162, 90);
    QTest::newRow("lossless") << QByteArray("ffv1") << QSize(50, 38);
    QTest::newRow("MPEG-4") << QByteArray("mpeg4") << QSize(128, 96);
}

void tst_HRCompactFrameCache::frames_equalThePlainCache_ofRealClips()
{
    QFETCH(QByteArray, codec);
    QFETCH(QSize, size);
    const QTemporaryDir directory;
    HRClip reader([] { return false; });
    QVERIFY(reader.open(write(directory, codec, size)).isNull());
    Pictures decoded;
    for (HRVideoFrame picture = reader.readPicture(); !picture.isNull();
         picture = reader.readPicture())
        decoded.push_back(picture);
    QCOMPARE(decoded.size(), size_t(12));
    compareCaches(decoded);
}

void tst_HRCompactFrameCache::frames_equalThePlainCache_asTheyAreDecoded_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("whole tiles") << QSize(160, 96);
    QTest::newRow("rows of tiles cut off") << QSize(160, 90);
    QTest::newRow("divided by no tile") << QSize(162, 90);
}

/// A picture that nobody but the cache gets is converted into what the cache has let go.
void tst_HRCompactFrameCache::frames_equalThePlainCache_asTheyAreDecoded()
{
    QFETCH(QSize, size);
    const QTemporaryDir directory;
    HRClip reader([] { return false; });
    QVERIFY(reader.open(write(directory, "libx264", size)).isNull());
    HRVideoFrameCache plain("x");
    HRCompactFrameCache compact("x");
    for (HRVideoFrame picture = reader.readPicture(); !picture.isNull();
         picture = reader.readPicture()) {
        HRVideoFrame own(picture.copy(), 0);
        own.setPts(picture.pts());
        plain.addFrame(own);
        compact.addFrame(picture);
        picture = HRVideoFrame();
    }
    QCOMPARE(compact.length(), size_t(12));
    compareCaches(plain, compact);
}

void tst_HRCompactFrameCache::frames_equalThePlainCache_whicheverPixelChanges_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("isDamageKnown");
    for (const bool isDamageKnown : { false, true }) {
        const char *damage = isDamageKnown ? "its place known" : "its place unknown";
        QTest::addRow("whole tiles, %s", damage) << QSize(48, 48) << isDamageKnown;
        QTest::addRow("a pixel more, %s", damage) << QSize(49, 49) << isDamageKnown;
        QTest::addRow("a pixel less, %s", damage) << QSize(47, 47) << isDamageKnown;
        QTest::addRow("one tile and a pixel, %s", damage) << QSize(17, 65) << isDamageKnown;
    }
}

/// The pixels in the corners of all tiles, one after the other.
void tst_HRCompactFrameCache::frames_equalThePlainCache_whicheverPixelChanges()
{
    QFETCH(QSize, size);
    QFETCH(bool, isDamageKnown);
    HRVideoFrame picture(size.width(), size.height(), QImage::Format_RGB32, 0);
    picture.fill(Qt::gray);
    HRVideoFrameCache plain("x");
    HRCompactFrameCache compact("x");
    plain.addFrame(picture);
    compact.addFrame(picture);
    const auto isCorner
        = [](int at, int end) { return at % 16 == 0 || at % 16 == 15 || at == end; };
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            if (!isCorner(x, size.width() - 1) || !isCorner(y, size.height() - 1))
                continue;
            const qint64 before = picture.cacheKey();
            picture.setPixel(x, y, qRgb(x, y, 255));
            if (isDamageKnown)
                picture.setDamage(before, QRect(x, y, 1, 1));
            plain.addFrame(picture);
            compact.addFrame(picture);
        }
    }
    compareCaches(plain, compact);
}

void tst_HRCompactFrameCache::addFrame_keepsThePicture_fromAQuarterOfNewPixelsOn_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("changed");
    QTest::addColumn<bool>("isKept");
    QTest::newRow("a tile of four") << QSize(32, 32) << QRect(0, 0, 1, 1) << true;
    QTest::newRow("a tile of six") << QSize(48, 32) << QRect(0, 0, 1, 1) << false;
    QTest::newRow("two tiles of six") << QSize(48, 32) << QRect(15, 0, 2, 1) << true;
    QTest::newRow("tiles at the edge count by their pixels")
        << QSize(80, 20) << QRect(0, 16, 80, 4) << false;
    QTest::newRow("the pixels of tiles at the edge count")
        << QSize(80, 22) << QRect(0, 16, 80, 6) << true;
    QTest::newRow("beside a tile of a pixel's width")
        << QSize(17, 64) << QRect(0, 0, 1, 16) << false;
    QTest::newRow("nothing") << QSize(32, 32) << QRect() << false;
}

/// Shown by the memory, which is the caller's only where the picture was kept as it is.
void tst_HRCompactFrameCache::addFrame_keepsThePicture_fromAQuarterOfNewPixelsOn()
{
    QFETCH(QSize, size);
    QFETCH(QRect, changed);
    HRVideoFrame first(size.width(), size.height(), QImage::Format_RGB32, 0);
    first.fill(Qt::gray);
    HRVideoFrame second(first.copy(), 0);
    for (int y = changed.top(); y <= changed.bottom(); ++y)
        for (int x = changed.left(); x <= changed.right(); ++x)
            second.setPixel(x, y, qRgb(255, 0, 0));
    HRCompactFrameCache cache("x");
    cache.addFrame(first);
    cache.addFrame(second);

    const HRVideoFrame kept = cache.frame(1);

    QTEST(kept.constBits() == qAsConst(second).constBits(), "isKept");
    QCOMPARE(static_cast<const QImage &>(kept), static_cast<const QImage &>(second));
}

/// Shown as above: one tile of six is new, two would be more than a quarter.
void tst_HRCompactFrameCache::addFrame_takesNoTileForNew_whereOneBelowHasChangedBefore()
{
    HRVideoFrame picture(48, 32, QImage::Format_RGB32, 0);
    picture.fill(Qt::gray);
    HRCompactFrameCache cache("x");
    cache.addFrame(picture);
    for (const QPoint &changed : { QPoint(0, 31), QPoint(47, 0) }) {
        picture.setPixel(changed, qRgb(255, 0, 0));
        cache.addFrame(picture);
    }

    const HRVideoFrame last = cache.frame(2);

    QVERIFY(last.constBits() != qAsConst(picture).constBits());
    QCOMPARE(static_cast<const QImage &>(last), static_cast<const QImage &>(picture));
}

void tst_HRCompactFrameCache::addFrame_trustsDamage_onlyOfThePictureBefore()
{
    HRVideoFrame gray(32, 32, QImage::Format_RGB32, 0);
    gray.fill(Qt::gray);
    HRVideoFrame red(gray);
    red.fill(Qt::red);
    red.setDamage(gray.cacheKey(), QRect(0, 0, 32, 16)); // a lie, to see who believes it
    HRCompactFrameCache cache("x");
    cache.addFrame(gray);
    cache.addFrame(red);
    QCOMPARE(cache.frame(1).pixelColor(0, 0), QColor(Qt::red));
    QCOMPARE(cache.frame(1).pixelColor(0, 31), QColor(Qt::red)); // half is new: kept whole
    red.setDamage(gray.cacheKey(), QRegion());
    cache.addFrame(gray);
    cache.addFrame(red);
    QCOMPARE(cache.frame(3).pixelColor(0, 0), QColor(Qt::gray));
    cache.addFrame(red);
    QCOMPARE(cache.frame(4).pixelColor(0, 0), QColor(Qt::red));
}

void tst_HRCompactFrameCache::frames_equalThePlainCache_whenSizeAndFormatChange()
{
    Pictures pictures = scribbles(QSize(40, 30), 6);
    for (const HRVideoFrame &picture : scribbles(QSize(40, 31), 3))
        pictures.push_back(picture);
    pictures.emplace_back(pictures.back().convertToFormat(QImage::Format_RGB888), 3);
    pictures.emplace_back(pictures.back(), 4);
    pictures.emplace_back(pictures.front().convertToFormat(QImage::Format_ARGB32), 5);
    pictures.emplace_back(pictures.front(), 6);
    compareCaches(pictures);
}

void tst_HRCompactFrameCache::frame_returnsNull_beyondTheLast()
{
    HRCompactFrameCache cache("x");
    QCOMPARE(cache.length(), size_t(0));
    QVERIFY(cache.frame(0).isNull());
    cache.addFrame(scribbles(QSize(20, 20), 1).front());
    QVERIFY(!cache.frame(0).isNull());
    QVERIFY(cache.frame(1).isNull());
}

void tst_HRCompactFrameCache::frame_sharesPixels_whenReadAgain()
{
    HRCompactFrameCache cache("x");
    for (const HRVideoFrame &picture : withMovingDot(QSize(64, 64), 3))
        cache.addFrame(picture);
    const HRVideoFrame first = cache.frame(2);
    const HRVideoFrame again = cache.frame(2);
    QCOMPARE(again.constBits(), first.constBits());
}

void tst_HRCompactFrameCache::frame_handsOutPixels_thatLaterReadsLeaveAlone()
{
    const Pictures pictures = scribbles(QSize(20, 20), 8);
    HRCompactFrameCache cache("x");
    for (const HRVideoFrame &picture : pictures)
        cache.addFrame(picture);
    const HRVideoFrame held = cache.frame(3);
    for (size_t i = 0; i < pictures.size(); ++i)
        cache.frame(i);
    QCOMPARE(static_cast<const QImage &>(held), static_cast<const QImage &>(pictures[3]));
}

void tst_HRCompactFrameCache::frame_isMadeOfTheOneBefore_thatNobodyHolds()
{
    const Pictures pictures = withMovingDot(QSize(64, 64), 8);
    HRCompactFrameCache cache("x");
    for (const HRVideoFrame &picture : pictures)
        cache.addFrame(picture);
    HRVideoFrame shown = cache.frame(1);
    const uchar *const memory = shown.constBits();
    for (size_t i : { 2, 5, 3 }) {
        shown = HRVideoFrame();
        shown = cache.frame(i);
        QCOMPARE(shown.constBits(), memory);
        QCOMPARE(static_cast<const QImage &>(shown), static_cast<const QImage &>(pictures[i]));
    }
    QVERIFY(cache.frame(4).constBits() != memory);
}

void tst_HRCompactFrameCache::frame_isMadeOfTheOneBeforeThat_whenTheLastIsHeld()
{
    const Pictures pictures = withMovingDot(QSize(64, 64), 8);
    HRCompactFrameCache cache("x");
    for (const HRVideoFrame &picture : pictures)
        cache.addFrame(picture);
    HRVideoFrame first = cache.frame(1);
    const uchar *const memory = first.constBits();
    const HRVideoFrame held = cache.frame(2);
    first = HRVideoFrame();
    const QImage other(64, 64, QImage::Format_RGB32); // takes the memory if it was let go

    const HRVideoFrame third = cache.frame(3);

    QCOMPARE(third.constBits(), memory);
    QCOMPARE(static_cast<const QImage &>(third), static_cast<const QImage &>(pictures[3]));
    QCOMPARE(static_cast<const QImage &>(held), static_cast<const QImage &>(pictures[2]));
}

void tst_HRCompactFrameCache::addFrame_keepsPixels_whenTheCallerOverwritesItsOwn()
{
    HRCompactFrameCache cache("x");
    HRVideoFrame frame(20, 20, QImage::Format_RGB32, 0);
    frame.fill(Qt::red);
    cache.addFrame(frame);
    frame.fill(Qt::blue);
    cache.addFrame(frame);
    QCOMPARE(cache.frame(0).pixelColor(19, 19), QColor(Qt::red));
    QCOMPARE(cache.frame(1).pixelColor(19, 19), QColor(Qt::blue));
}

QTEST_APPLESS_MAIN(tst_HRCompactFrameCache)
#include "tst_HRCompactFrameCache.moc"
