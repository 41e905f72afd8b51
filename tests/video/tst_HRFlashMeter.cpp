// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRClipFlashes_p.h"

#include <QPainter>
#include <QtTest>

using namespace Hintreels;

namespace {

const QColor black(0, 0, 0);
const QColor white(255, 255, 255);
const QColor red(255, 0, 0);

HRVideoFrame plain(const QColor &color, const QSize &size = QSize(480, 270))
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(color);
    return HRVideoFrame(picture, 0);
}

HRVideoFrame withPatch(const QColor &ground, const QColor &color, const QRect &place)
{
    QImage picture = plain(ground);
    QPainter(&picture).fillRect(place, color);
    return HRVideoFrame(picture, 0);
}

using Pictures = QVector<HRVideoFrame>;

/// As many pictures of the two in turn as @p changes from one to the other need, each for its time.
int mostOf(const Pictures &two, int changes, double seconds)
{
    HRFlashMeter meter;
    for (int i = 0; i <= changes; ++i)
        meter.add(two[i % 2], i * seconds);
    return meter.most();
}

} // namespace

Q_DECLARE_METATYPE(Pictures)

class tst_HRFlashMeter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void most_followsTheDefinition_data();
    void most_followsTheDefinition();
    void most_isThatOfAnySecond();
    void most_isZero_withoutChanges();
    void most_isLow_forASlowFade();
    void most_isLow_whereEachPlaceChangesOnce();
    void add_looksOnlyAtDamage();
    void add_startsAnew_inAnotherSize();
    void clip_flashesOnlyRepeated_data();
    void clip_flashesOnlyRepeated();
};

void tst_HRFlashMeter::most_followsTheDefinition_data()
{
    QTest::addColumn<Pictures>("two");
    QTest::addColumn<int>("changes");
    QTest::addColumn<double>("seconds");
    QTest::addColumn<int>("most");
    const Pictures blink{ plain(black), plain(white) };

    QTest::newRow("one change") << blink << 1 << 0.1 << 0;
    QTest::newRow("there and back") << blink << 2 << 0.1 << 1;
    QTest::newRow("three in a second") << blink << 6 << 0.1 << 3;
    QTest::newRow("four in a second") << blink << 8 << 0.1 << 4;
    QTest::newRow("three a second, on and on") << blink << 60 << 1.0 / 6 << 3;
    QTest::newRow("four a second, on and on") << blink << 80 << 1.0 / 8 << 4;
    QTest::newRow("twelve a second") << blink << 48 << 1.0 / 24 << 12;
    QTest::newRow("the dark side first") << Pictures{ plain(white), plain(black) } << 8 << 0.1 << 4;

    // Relative luminances: 90 is 0.102, 0.100 apart from black; 91 is 0.105.
    QTest::newRow("by a tenth") << Pictures{ plain(black), plain(QColor(91, 91, 91)) } << 8 << 0.1
                                << 4;
    QTest::newRow("by less") << Pictures{ plain(black), plain(QColor(88, 88, 88)) } << 8 << 0.1
                             << 0;
    // 231 is 0.799, 232 is 0.807.
    QTest::newRow("dark enough") << Pictures{ plain(QColor(231, 231, 231)), plain(white) } << 8
                                 << 0.1 << 4;
    QTest::newRow("a pair of light ones")
        << Pictures{ plain(QColor(232, 232, 232)), plain(white) } << 8 << 0.1 << 0;

    QTest::newRow("red and a grey as light")
        << Pictures{ plain(red), plain(QColor(127, 127, 127)) } << 8 << 0.1 << 4;
    QTest::newRow("red three times")
        << Pictures{ plain(red), plain(QColor(127, 127, 127)) } << 6 << 0.1 << 3;
    QTest::newRow("red, and red less full") // 0.83 of it red
        << Pictures{ plain(red), plain(QColor(255, 80, 80)) } << 8 << 0.1 << 0;
    QTest::newRow("blue and a grey as light")
        << Pictures{ plain(QColor(0, 0, 255)), plain(QColor(76, 76, 76)) } << 8 << 0.1 << 0;

    // A quarter of the field are 21,824 pixels: 148 by 148, and a place more.
    QTest::newRow("a small area") << Pictures{ plain(black),
        withPatch(black, white, { 30, 30, 120, 120 }) }
                                  << 8 << 0.1 << 0;
    QTest::newRow("a quarter of the field")
        << Pictures{ plain(black), withPatch(black, white, { 30, 30, 165, 165 }) } << 8 << 0.1 << 4;
    QTest::newRow("the same at the edge")
        << Pictures{ plain(black), withPatch(black, white, { 315, 105, 165, 165 }) } << 8 << 0.1
        << 4;
    QTest::newRow("as large an area, too far apart")
        << Pictures{ plain(black), withPatch(black, white, { 0, 0, 480, 30 }) } << 8 << 0.1 << 0;
    QTest::newRow("tiny pictures")
        << Pictures{ plain(black, { 2, 2 }), plain(white, { 2, 2 }) } << 8 << 0.1 << 4;
    QTest::newRow("tall pictures")
        << Pictures{ plain(black, { 9, 999 }), plain(white, { 9, 999 }) } << 8 << 0.1 << 4;
}

void tst_HRFlashMeter::most_followsTheDefinition()
{
    QFETCH(Pictures, two);
    QFETCH(int, changes);
    QFETCH(double, seconds);
    QTEST(mostOf(two, changes, seconds), "most");
}

void tst_HRFlashMeter::most_isThatOfAnySecond()
{
    HRFlashMeter meter;
    double seconds = 0.0;
    // Slowly, then four in less than a second after times of all lengths, then slowly again.
    for (double length : { 0.9, 0.6, 0.8, 0.05, 0.2, 0.1, 0.15, 0.03, 0.2, 0.1, 0.9, 0.8 }) {
        static bool isWhite = false;
        meter.add(plain(isWhite ? white : black), seconds += length);
        isWhite = !isWhite;
    }
    QCOMPARE(meter.most(), 4);
    QVERIFY(meter.isFlashing());
}

void tst_HRFlashMeter::most_isZero_withoutChanges()
{
    HRFlashMeter meter;
    QCOMPARE(meter.most(), 0);
    meter.add(HRVideoFrame(), 0.0);
    QCOMPARE(meter.most(), 0);
    for (int i = 0; i < 30; ++i)
        meter.add(plain(white), i / 30.0);
    QCOMPARE(meter.most(), 0);
    QVERIFY(!meter.isFlashing());
}

void tst_HRFlashMeter::most_isLow_forASlowFade()
{
    HRFlashMeter meter;
    for (int i = 0; i < 300; ++i) { // up and down once in two seconds
        const int grey = i % 60 < 30 ? i % 60 * 8 : (60 - i % 60) * 8;
        meter.add(plain(QColor(grey, grey, grey)), i / 30.0);
    }
    QVERIFY2(meter.most() <= 1, qPrintable(QString::number(meter.most())));
}

/// A bar goes over the picture.
void tst_HRFlashMeter::most_isLow_whereEachPlaceChangesOnce()
{
    HRFlashMeter meter;
    for (int i = 0; i < 30; ++i)
        meter.add(withPatch(black, white, { 14 * i, 0, 60, 270 }), i / 30.0);
    QCOMPARE(meter.most(), 1);
}

void tst_HRFlashMeter::add_looksOnlyAtDamage()
{
    HRFlashMeter meter;
    HRVideoFrame last = plain(black);
    meter.add(last, 0.0);
    for (int i = 1; i <= 8; ++i) {
        HRVideoFrame next = plain(i % 2 == 0 ? black : white);
        // What it says of the pictures before another one does not count.
        next.setDamage(i < 5 ? last.cacheKey() : 1, QRegion());
        meter.add(next, i * 0.1);
        last = next;
    }
    QCOMPARE(meter.most(), 2); // the white one with the unknown base is the first change
}

void tst_HRFlashMeter::add_startsAnew_inAnotherSize()
{
    HRFlashMeter meter;
    for (int i = 0; i < 20; ++i)
        meter.add(plain(i % 2 == 0 ? black : white, QSize(40 + i, 30)), i * 0.05);
    QCOMPARE(meter.most(), 0);
}

void tst_HRFlashMeter::clip_flashesOnlyRepeated_data()
{
    QTest::addColumn<int>("pictures");
    QTest::addColumn<double>("period");
    QTest::addColumn<bool>("once");
    QTest::addColumn<bool>("repeated");
    QTest::newRow("none") << 0 << 0.1 << false << false;
    QTest::newRow("one") << 1 << 0.1 << false << false;
    QTest::newRow("two, quickly") << 2 << 0.1 << false << true;
    QTest::newRow("two, slowly") << 2 << 0.25 << false << false;
    QTest::newRow("two, of no length") << 2 << 0.0 << false << true;
    QTest::newRow("many") << 20 << 0.1 << true << true;
}

void tst_HRFlashMeter::clip_flashesOnlyRepeated()
{
    QFETCH(int, pictures);
    QFETCH(double, period);
    HRClipFlashes flashes;
    const auto pictureAt = [](size_t index) { return plain(index % 2 == 0 ? black : white); };
    for (int i = 0; i < pictures; ++i)
        flashes.add(pictureAt(size_t(i)), HRFileTime(), period);

    flashes.repeat(pictureAt);

    QTEST(flashes.isFlashing(), "once");
    QTEST(flashes.isFlashingRepeated(), "repeated");
}

QTEST_APPLESS_MAIN(tst_HRFlashMeter)
#include "tst_HRFlashMeter.moc"
