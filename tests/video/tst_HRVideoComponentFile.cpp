// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRVideoComponent.h"

#include "video/ItemStage.h"

#include <QtTest>

using namespace Hintreels;

/// What the item takes from the file where it is told to.
class tst_HRVideoComponentFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void timing_isConstant_untilItIsSet();
    void timing_followsTheFile();
    void timing_ofEachClipBeginsAtZero();
    void length_isToldOfEachClip();
    void colors_areTheFiles_whenAskedFor_data();
    void colors_areTheFiles_whenAskedFor();
    void upright_turnsThePicture_data();
    void upright_turnsThePicture();
    void flashing_isKnown_onceDecoded_data();
    void flashing_isKnown_onceDecoded();
    void flashing_isThatOfTheClipOnShow();
    void flashing_isKnown_beforeThePictureShows();

private:
    QString path(const QString &name) const { return m_directory.filePath(name); }
    QString varyingClip() const;

    QTemporaryDir m_directory;
};

namespace {

qint64 indexOf(ItemStage *stage, double seconds)
{
    qint64 index = -1;
    QMetaObject::invokeMethod(
        stage->item, "positionAt", Q_RETURN_ARG(qint64, index), Q_ARG(double, seconds));
    return index;
}

QString writeBlinking(const QString &path, int pictures, int rate)
{
    TestClip clip;
    clip.pictures = pictures;
    clip.rate = rate;
    return clip.write(path, &TestClip::blinking);
}

} // namespace

/// Four pictures, shown for 0.2 s, 2 s, 0.3 s and 0.01 s; at the rate that FFmpeg finds for 0.2 s
/// each.
QString tst_HRVideoComponentFile::varyingClip() const
{
    TestClip clip;
    clip.rate = 100;
    clip.times = { 0, 20, 220, 250 };
    clip.pictures = clip.times.size();
    return clip.write(path("varying.mp4"));
}

void tst_HRVideoComponentFile::timing_isConstant_untilItIsSet()
{
    ItemStage stage;
    SignalCounter timing(stage.item, &HRVideoComponent::timingChanged);
    stage.setFile(varyingClip());
    QTRY_VERIFY(stage.isDecoded());
    QCOMPARE(stage.item->timing(), QString("constant"));
    QCOMPARE(stage.item->length(), 0.8);
    QCOMPARE(stage.item->positionAt(0.6), qint64(3));
    for (const char *value : { "constant", "", "File", "variable" })
        stage.item->setTiming(value);
    QCOMPARE(timing.count(), 0);

    stage.item->setPosition(3);
    QTRY_COMPARE(stage.number(), 3);
    QCOMPARE(stage.item->pictureTime(), 0.6);
    stage.item->setTiming("file");
    QCOMPARE(stage.item->timing(), QString("file"));
    QCOMPARE(timing.count(), 1);
    QTRY_COMPARE(qRound(100 * stage.item->pictureTime()), 250);
    stage.item->setTiming("file");
    stage.item->setTiming("constant");
    QCOMPARE(stage.item->timing(), QString("constant"));
    QCOMPARE(timing.count(), 2);

    SignalCounter colors(stage.item, &HRVideoComponent::colorsChanged);
    for (const char *value : { "described", "", "File", "file", "file", "described" })
        stage.item->setColors(value);
    QCOMPARE(stage.item->colors(), QString("described"));
    QCOMPARE(colors.count(), 2);
}

void tst_HRVideoComponentFile::timing_followsTheFile()
{
    ItemStage stage;
    stage.item->setTiming("file");
    stage.setFile(varyingClip());
    QTRY_VERIFY(stage.isDecoded());
    QCOMPARE(stage.item->length(), 2.51);
    const QVector<int> times{ 0, 20, 220, 250 };
    for (int i = 3; i >= 0; --i) {
        stage.item->setPosition(indexOf(&stage, 0.01 * times[i] + 0.005));
        QTRY_COMPARE(stage.number(), i);
        QCOMPARE(qRound(100 * stage.item->pictureTime()), times[i]);
        QCOMPARE(stage.item->position(), qint64(i));
        QCOMPARE(stage.item->progress(), i / 4.0);
    }
}

void tst_HRVideoComponentFile::timing_ofEachClipBeginsAtZero()
{
    ItemStage stage;
    stage.item->setTiming("file");
    NumberedClips clips;
    for (const QString &file : { varyingClip(), clips.write("second.mp4", 20, 10) }) {
        stage.setFile(file);
        QTRY_VERIFY(stage.isDecoded());
        QTRY_VERIFY(!stage.paintsNothing());
        QCOMPARE(stage.item->pictureTime(), 0.0);
    }
    QCOMPARE(stage.item->length(), 0.2);
}

void tst_HRVideoComponentFile::length_isToldOfEachClip()
{
    ItemStage stage;
    QCOMPARE(stage.item->length(), 0.0);
    SignalCounter length(stage.item, &HRVideoComponent::lengthChanged);
    stage.setFile(varyingClip());
    QTRY_VERIFY(stage.item->isDecoded());
    QCOMPARE(stage.item->length(), 0.8);
    QVERIFY(length.count() > 0);

    length.clear();
    stage.item->setTiming("file");
    QCOMPARE(length.count(), 1);
    NumberedClips clips;
    stage.setFile(clips.write("second.mp4", 20, 10));
    QCOMPARE(length.count(), 2);
    QCOMPARE(stage.item->length(), 0.0);
}

void tst_HRVideoComponentFile::colors_areTheFiles_whenAskedFor_data()
{
    QTest::addColumn<int>("matrix");
    QTest::addColumn<int>("range");
    QTest::addColumn<QColor>("described");
    QTest::addColumn<QColor>("byFile");
    const QColor green(0, 192, 0);
    QTest::newRow("BT.709") << 1 << 1 << QColor(13, 221, 3) << green;
    QTest::newRow("BT.709, full range") << 1 << 2 << QColor(13, 221, 3) << green;
    QTest::newRow("BT.601") << 6 << 1 << green << green;
    QTest::newRow("BT.601, full range") << 6 << 2 << green << green;
    QTest::newRow("nothing named") << 2 << 0 << green << green;
}

void tst_HRVideoComponentFile::colors_areTheFiles_whenAskedFor()
{
    TestClip clip;
    QFETCH(int, matrix);
    QFETCH(int, range);
    QFETCH(QColor, described);
    QFETCH(QColor, byFile);
    clip.matrix = matrix;
    clip.range = range;
    clip.pictures = 2;
    const auto paint = [](const QSize &size, int) {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(qRgb(0, 192, 0));
        return picture;
    };
    const auto isLike = [](const QColor &a, const QColor &b) {
        return qAbs(a.red() - b.red()) < 5 && qAbs(a.green() - b.green()) < 5
            && qAbs(a.blue() - b.blue()) < 5;
    };
    ItemStage stage;
    SignalCounter colors(stage.item, &HRVideoComponent::colorsChanged);
    QCOMPARE(stage.item->colors(), QString("described"));
    stage.setFile(clip.write(path("described.mp4"), paint));
    QTRY_VERIFY(!stage.paintsNothing());
    const QColor before = stage.painted().pixelColor(20, 20);
    QVERIFY2(isLike(before, described), qPrintable(before.name()));

    for (const char *value : { "file", "file", "something" })
        stage.item->setColors(value);
    QCOMPARE(stage.item->colors(), QString("file"));
    QCOMPARE(colors.count(), 1);
    stage.setFile(clip.write(path("file.mp4"), paint));
    QTRY_VERIFY(!stage.paintsNothing());
    const QColor after = stage.painted().pixelColor(20, 20);
    QVERIFY2(isLike(after, byFile), qPrintable(after.name()));
}

void tst_HRVideoComponentFile::upright_turnsThePicture_data()
{
    QTest::addColumn<QSize>("pixel");
    QTest::addColumn<QVector<int>>("turn");
    QTest::addColumn<QSize>("size"); // of the item
    QTest::addColumn<QPoint>("light"); // of the four quarters the one that is light
    using Turn = QVector<int>;
    QTest::newRow("as it is coded") << QSize() << Turn() << QSize(40, 20) << QPoint(0, 0);
    QTest::newRow("a quarter") << QSize() << Turn{ 0, 1, -1, 0 } << QSize(20, 40) << QPoint(1, 0);
    QTest::newRow("half") << QSize() << Turn{ -1, 0, 0, -1 } << QSize(40, 20) << QPoint(1, 1);
    QTest::newRow("three quarters")
        << QSize() << Turn{ 0, -1, 1, 0 } << QSize(20, 40) << QPoint(0, 1);
    QTest::newRow("mirrored") << QSize() << Turn{ -1, 0, 0, 1 } << QSize(40, 20) << QPoint(1, 0);
    QTest::newRow("wide pixels") << QSize(3, 2) << Turn() << QSize(60, 20) << QPoint(0, 0);
    QTest::newRow("high pixels, a quarter")
        << QSize(1, 2) << Turn{ 0, 1, -1, 0 } << QSize(40, 40) << QPoint(1, 0);
}

void tst_HRVideoComponentFile::upright_turnsThePicture()
{
    TestClip clip;
    QFETCH(QSize, pixel);
    QFETCH(QVector<int>, turn);
    QFETCH(QSize, size);
    QFETCH(QPoint, light);
    clip.pixel = pixel;
    clip.turn = turn;
    clip.size = QSize(40, 20);
    clip.pictures = 1;
    ItemStage stage;
    SignalCounter upright(stage.item, &HRVideoComponent::uprightChanged);
    QVERIFY(!stage.item->isUpright());
    stage.item->setUpright(true);
    stage.item->setUpright(true);
    QVERIFY(stage.item->isUpright());
    QCOMPARE(upright.count(), 1);
    stage.setFile(clip.write(path("turned.mp4"), [](const QSize &coded, int) {
        QImage picture(coded, QImage::Format_RGB32);
        picture.fill(Qt::black);
        QPainter(&picture).fillRect(0, 0, coded.width() / 2, coded.height() / 2, Qt::white);
        return picture;
    }));
    QTRY_VERIFY(stage.item->implicitWidth() > 0.0);
    QCOMPARE(QSizeF(stage.item->implicitWidth(), stage.item->implicitHeight()), QSizeF(size));
    const QImage painted = stage.painted();
    for (const QPoint &quarter : { QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(1, 1) }) {
        const QPoint middle(
            (2 * quarter.x() + 1) * size.width() / 4, (2 * quarter.y() + 1) * size.height() / 4);
        QCOMPARE(qGray(painted.pixel(middle)) > 128, quarter == light);
    }

    stage.item->setUpright(false);
    QCOMPARE(QSizeF(stage.item->implicitWidth(), stage.item->implicitHeight()), QSizeF(40, 20));
    QVERIFY(qGray(stage.painted().pixel(10, 5)) > 128);
    QCOMPARE(upright.count(), 2);
}

void tst_HRVideoComponentFile::flashing_isKnown_onceDecoded_data()
{
    QTest::addColumn<int>("pictures");
    QTest::addColumn<int>("rate");
    QTest::addColumn<bool>("loop");
    QTest::addColumn<bool>("flashes");
    QTest::newRow("three times a second") << 30 << 6 << true << false;
    QTest::newRow("five times a second") << 30 << 10 << false << true;
    QTest::newRow("once") << 2 << 10 << false << false;
    QTest::newRow("once, over and over") << 2 << 10 << true << true;
    QTest::newRow("a single picture") << 1 << 10 << true << false;
}

void tst_HRVideoComponentFile::flashing_isKnown_onceDecoded()
{
    QFETCH(int, pictures);
    QFETCH(int, rate);
    QFETCH(bool, loop);
    QFETCH(bool, flashes);
    ItemStage stage;
    stage.item->setLooping(loop);
    SignalCounter told(stage.item, &HRVideoComponent::flashingChanged);
    stage.setFile(writeBlinking(path("blinking.mp4"), pictures, rate));

    QTRY_VERIFY(stage.item->isDecoded());

    QCOMPARE(stage.item->isFlashing(), flashes);
    QCOMPARE(told.count(), flashes ? 1 : 0);
}

void tst_HRVideoComponentFile::flashing_isThatOfTheClipOnShow()
{
    ItemStage stage;
    stage.setFile(writeBlinking(path("blinking.mp4"), 2, 10));
    QTRY_VERIFY(stage.item->isDecoded());
    QVERIFY(!stage.item->isFlashing());
    stage.item->setLooping(true);
    QVERIFY(stage.item->isFlashing());

    stage.setFile(varyingClip());
    QVERIFY(!stage.item->isFlashing());
    QTRY_VERIFY(stage.item->isDecoded());
    QVERIFY(!stage.item->isFlashing());
}

/// The fourth flash ends with the ninth picture.
void tst_HRVideoComponentFile::flashing_isKnown_beforeThePictureShows()
{
    ItemStage stage;
    stage.item->setTiming("file");
    bool isTold = false;
    double latest = 0.0;
    QObject::connect(stage.item, &HRVideoComponent::flashingChanged, stage.item, [&] {
        isTold = stage.item->isFlashing();
        stage.item->setKeepPlaying(false);
    });
    QObject::connect(stage.item, &HRVideoComponent::timeChanged, stage.item,
        [&] { latest = qMax(latest, stage.item->pictureTime()); });
    stage.item->setKeepPlaying(true);
    stage.setFile(writeBlinking(path("blinking.mp4"), 58, 10));
    stage.view.show();

    QTRY_VERIFY(stage.item->isDecoded());
    QTRY_COMPARE(stage.item->state(), HRVideoComponent::pausedState);
    QVERIFY(isTold);
    QVERIFY2(latest < 0.75, qPrintable(QString::number(latest)));
}

QTEST_MAIN(tst_HRVideoComponentFile)
#include "tst_HRVideoComponentFile.moc"
