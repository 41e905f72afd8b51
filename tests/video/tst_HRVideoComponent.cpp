// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRVideoComponent.h"

#include "support/MessageGuard.h"
#include "support/MetaMembers.h"
#include "support/RecordingHost.h"
#include "ui/items/qmlTypes_p.h"
#include "video/ItemStage.h"

#include <QElapsedTimer>
#include <QPaintEngine>
#include <QPainter>
#include <QSet>
#include <QtTest>

#include <random>

using namespace Hintreels;

class tst_HRVideoComponent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void newItem_isPausedWithTheSizeOfNoClip();
    void source_isNotTaken_withoutAView();
    void source_showsItsFirstPicture();
    void source_clearsThePictureOnly_whenNothingIsFound();
    void source_isEmpty_pausesAndClears();
    void source_emitsNothing();
    void source_isRefused_aboveTheSettingForPictures_data();
    void source_isRefused_aboveTheSettingForPictures();
    void clipBefore_neverFlashes();
    void heightChanged_comesOncePerHeight();
    void searchPath_isKept();
    void paint_drawsThePictureAtItsOwnSize();
    void pictures_takeTheMemoryOfTheOneBefore();
    void destruction_isQuick_atAnyMoment();
    void failed_isToldOfEachClip();
    void metaObject_keepsItsOrder();

private:
    NumberedClips m_clips;
    QString m_clip; // numbers 0 to 9
    QString m_other; // numbers 30 to 39, of another height
};

namespace {

/// Notes where the pixels lie that are drawn with it.
class PixelWatch : public QPaintEngine
{
public:
    PixelWatch()
        : QPaintEngine(AllFeatures)
    {
    }

    const uchar *pixels = nullptr;

private:
    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &) override { }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override { }
    void drawImage(
        const QRectF &, const QImage &image, const QRectF &, Qt::ImageConversionFlags) override
    {
        pixels = image.constBits();
    }
    Type type() const override { return User; }
};

struct WatchedCanvas : QImage
{
    WatchedCanvas()
        : QImage(64, 48, QImage::Format_RGB32)
    {
    }

    QPaintEngine *paintEngine() const override { return &watch; }

    mutable PixelWatch watch;
};

/// One colour with a square that moves.
QImage movingSquare(const QSize &size, int number)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(qRgb(200, 200, 200));
    QPainter(&picture).fillRect(number * 3, 4, 8, 8, Qt::black);
    return picture;
}

} // namespace

void tst_HRVideoComponent::initTestCase()
{
    registerQmlTypes();
    m_clip = m_clips.write("clip.mp4", 0, 10);
    m_other = m_clips.write("other.mp4", 30, 10, QSize(64, 64));
}

void tst_HRVideoComponent::newItem_isPausedWithTheSizeOfNoClip()
{
    const HRVideoComponent item;
    QCOMPARE(item.state(), HRVideoComponent::pausedState);
    QCOMPARE(item.contentWidth(), 200.0);
    QCOMPARE(item.contentHeight(), 150.0);
    QCOMPARE(item.implicitWidth(), 0.0);
    QCOMPARE(item.position(), qint64(0));
    QCOMPARE(item.progress(), 0.0);
    QCOMPARE(item.loadProgress(), 0.0);
    QVERIFY(item.flags() & QQuickItem::ItemHasContents);
}

void tst_HRVideoComponent::source_isNotTaken_withoutAView()
{
    HRVideoComponent item;
    item.setSource("clip");
    QCOMPARE(item.source(), QString());

    QQuickWindow window;
    item.setParentItem(window.contentItem());
    item.setSource("clip");
    QCOMPARE(item.source(), QString());
}

void tst_HRVideoComponent::source_showsItsFirstPicture()
{
    ItemStage stage;
    QVERIFY(stage.paintsNothing());
    stage.setFile(m_clip);
    QTRY_COMPARE(stage.number(), 0);
    QCOMPARE(stage.item->source(), QString("clip"));
    QCOMPARE(stage.item->implicitWidth(), 64.0);
    QCOMPARE(stage.item->implicitHeight(), 48.0);
    QCOMPARE(stage.item->state(), HRVideoComponent::pausedState);
    QCOMPARE(stage.item->loadProgress(), 1.0);
}

void tst_HRVideoComponent::source_clearsThePictureOnly_whenNothingIsFound()
{
    ItemStage stage;
    stage.setFile(m_clip);
    QTRY_COMPARE(stage.number(), 0);
    QTRY_VERIFY(stage.isDecoded());

    stage.view.content()->setAttribute("resources", m_clips.filePath("missing.mp4"));
    stage.item->setSource("missing");
    QVERIFY(stage.paintsNothing());
    QCOMPARE(stage.item->source(), QString("missing"));

    // The clip before is still the one in effect.
    stage.item->setPosition(4);
    QTRY_COMPARE(stage.number(), 4);
}

void tst_HRVideoComponent::source_isEmpty_pausesAndClears()
{
    ItemStage stage;
    stage.setFile(m_clip);
    QTRY_VERIFY(stage.isDecoded());
    stage.item->play();
    stage.view.content()->setAttribute("resources", m_clips.path());
    stage.item->setSource("");
    QCOMPARE(stage.item->source(), QString());
    QCOMPARE(stage.item->state(), HRVideoComponent::pausedState);
    QCOMPARE(stage.item->position(), qint64(0));
}

void tst_HRVideoComponent::source_emitsNothing()
{
    ItemStage stage;
    SignalCounter spy(stage.item, &HRVideoComponent::sourceChanged);
    stage.setFile(m_clip);
    QTRY_COMPARE(stage.number(), 0);
    QCOMPARE(spy.count(), 0);
}

void tst_HRVideoComponent::source_isRefused_aboveTheSettingForPictures_data()
{
    QTest::addColumn<QVariant>("megapixels");
    QTest::addColumn<bool>("shown");
    QTest::newRow("absent") << QVariant() << true;
    QTest::newRow("smaller") << QVariant(1) << false;
    QTest::newRow("larger") << QVariant(2) << true;
    QTest::newRow("of another type") << QVariant("1") << true;
}

void tst_HRVideoComponent::source_isRefused_aboveTheSettingForPictures()
{
    QFETCH(QVariant, megapixels);
    QFETCH(bool, shown);
    const QString file = m_clips.write("megapixels.mp4", 0, 2, QSize(1600, 1000));
    HRContext context;
    if (megapixels.isValid())
        context.set(largestPictureKey, megapixels);
    RecordingHost host(context, {});
    MessageGuard messages;
    ItemStage stage(file, host.manager());
    stage.setFile(file);
    QStringList seen;
    QTRY_VERIFY(stage.number() == 0 || !(seen += messages.takeMessages()).isEmpty());
    QCOMPARE(stage.number() == 0, shown);
    const QStringList refusal{ "Could not allocate rgb frame in " + file };
    QCOMPARE(seen, shown ? QStringList() : refusal);
}

void tst_HRVideoComponent::clipBefore_neverFlashes()
{
    ItemStage stage;
    stage.setFile(m_clip);
    QTRY_VERIFY(stage.isDecoded());
    for (int i = 0; i < 30; ++i) {
        const bool toOther = i % 2 == 0;
        stage.setFile(toOther ? m_other : m_clip);
        QVERIFY(stage.paintsNothing());
        QElapsedTimer timer;
        timer.start();
        while (stage.paintsNothing() && timer.elapsed() < 5000)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
        QCOMPARE(stage.number() >= 30, toOther);
    }
}

void tst_HRVideoComponent::heightChanged_comesOncePerHeight()
{
    ItemStage stage;
    SignalCounter height(stage.item, &HRVideoComponent::heightChanged);
    stage.setFile(m_clip);
    QTRY_VERIFY(stage.isDecoded());
    stage.item->setPosition(5);
    QTRY_COMPARE(stage.number(), 5);
    QCOMPARE(height.count(), 1);
    stage.setFile(m_other);
    QTRY_COMPARE(stage.number(), 30);
    QTRY_VERIFY(stage.isDecoded());
    stage.item->setPosition(5);
    QTRY_COMPARE(stage.number(), 35);
    QCOMPARE(height.count(), 2);
    QCOMPARE(stage.item->implicitHeight(), 64.0);
}

void tst_HRVideoComponent::searchPath_isKept()
{
    HRVideoComponent item;
    SignalCounter spy(&item, &HRVideoComponent::searchPathChanged);
    item.setSearchPath("clips");
    QCOMPARE(item.searchPath(), QString("clips"));
    QCOMPARE(spy.count(), 1);
}

void tst_HRVideoComponent::paint_drawsThePictureAtItsOwnSize()
{
    ItemStage stage;
    stage.setFile(m_clip);
    QTRY_COMPARE(stage.number(), 0);
    stage.item->setSize(QSizeF(640, 480));
    QImage image(100, 100, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    stage.item->paint(&painter);
    QCOMPARE(qAlpha(image.pixel(63, 47)), 255);
    QCOMPARE(qAlpha(image.pixel(64, 47)), 0);
    QCOMPARE(qAlpha(image.pixel(63, 48)), 0);
}

void tst_HRVideoComponent::pictures_takeTheMemoryOfTheOneBefore()
{
    TestClip encoded;
    encoded.codec = "gif";
    encoded.format = "gray";
    encoded.options = "";
    encoded.rate = 25;
    ItemStage stage;
    stage.setFile(encoded.write(m_clips.filePath("square.gif"), &movingSquare));
    QTRY_VERIFY(stage.isDecoded());
    QSet<const uchar *> places;
    for (int position : { 2, 3, 4, 5 }) {
        stage.item->setPosition(position);
        QTRY_COMPARE(qRound(stage.item->pictureTime() * 25), position);
        WatchedCanvas canvas;
        QPainter painter(&canvas);
        stage.item->paint(&painter);
        places.insert(canvas.watch.pixels);
    }
    QCOMPARE(places.size(), 1);
    QVERIFY(!places.contains(nullptr));
}

void tst_HRVideoComponent::destruction_isQuick_atAnyMoment()
{
    MessageGuard messages;
    std::mt19937 random(5);
    const QString file = m_clips.write("destroy.mp4", 0, 50, QSize(320, 240));
    qint64 longest = 0;
    for (int i = 0; i < 200; ++i) {
        ItemStage stage;
        if (i % 10 != 0)
            stage.setFile(file);
        if (i % 3 == 0)
            stage.item->play();
        QElapsedTimer life;
        life.start();
        const int microseconds = int(random() % 20000);
        while (life.nsecsElapsed() / 1000 < microseconds)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
        QElapsedTimer timer;
        timer.start();
        delete stage.item;
        longest = qMax(longest, timer.elapsed());
    }
    QVERIFY2(longest < 1000, qPrintable(QString("%1 ms").arg(longest)));
}

void tst_HRVideoComponent::failed_isToldOfEachClip()
{
    MessageGuard messages;
    const QString noClip = m_clips.filePath("no clip.mp4");
    const QString noPicture = m_clips.filePath("no picture.gif");
    const QByteArray gif = QByteArray::fromHex(
        "47494638396101000100800000000000ffffff2c0000000001000100000f024401003b");
    for (const auto &[path, content] :
        { std::pair(noClip, QByteArray("text")), { noPicture, gif } }) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    ItemStage stage;
    SignalCounter failed(stage.item, &HRVideoComponent::failedChanged);
    const QString good = m_clips.write("good.mp4", 0, 4);
    for (const QString &path : { noClip, noPicture }) {
        stage.setFile(path);
        QTRY_VERIFY(stage.item->hasFailed());
        stage.setFile(good);
        QVERIFY(!stage.item->hasFailed());
        QTRY_VERIFY(stage.isDecoded());
        QVERIFY(!stage.item->hasFailed());
    }
    QCOMPARE(failed.count(), 4);
    // Of clips that are set one after the other, the last counts.
    for (const QString &path : { noClip, m_clips.write("last.mp4", 0, 4) })
        stage.setFile(path);
    QTRY_VERIFY(stage.item->isDecoded());
    QCOMPARE(failed.count(), 4);
    QCOMPARE(messages.takeMessages().size(), 3);
}

void tst_HRVideoComponent::metaObject_keepsItsOrder()
{
    const QMetaObject &meta = HRVideoComponent::staticMetaObject;
    QCOMPARE(methodsOf(meta),
        (QByteArrayList{ "sourceChanged()", "stateChanged()", "positionChanged()",
            "progressChanged()", "heightChanged()", "searchPathChanged()", "scrubbingChanged()",
            "contentHeightChanged()", "contentWidthChanged()", "loadProgressChanged()",
            "timeChanged()", "decodedChanged()", "endedChanged()", "keepPlayingChanged()",
            "loopChanged()", "finished()", "lengthChanged()", "timingChanged()", "colorsChanged()",
            "uprightChanged()", "failedChanged()", "flashingChanged()", "frameReady()", "play()",
            "pause()", "sourceChangedState()", "rewindToStart()", "controllerPositionChanged()",
            "pictureTime()", "positionAt(double)" }));
    QStringList properties;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        properties += meta.property(i).name();
    QCOMPARE(properties,
        (QStringList{ "source", "state", "position", "progress", "searchPath", "scrubbing",
            "contentHeight", "contentWidth", "loadProgress", "time", "decoded", "ended",
            "keepPlaying", "loop", "length", "timing", "colors", "upright", "failed",
            "flashing" }));
}

QTEST_MAIN(tst_HRVideoComponent)
#include "tst_HRVideoComponent.moc"
