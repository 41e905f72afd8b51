// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRVideoComponent.h"

#include "support/MessageGuard.h"
#include "support/RecordingHost.h"
#include "support/SignalCounter.h"
#include "support/TestClip.h"
#include "ui/items/qmlTypes_p.h"
#include "ui/popup/HRView.h"

#include <QElapsedTimer>
#include <QPaintEngine>
#include <QPainter>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>
#include <QQuickItem>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

#include <random>
#include <type_traits>

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
    void play_showsAllAndPauses();
    void play_restartsAtTheEnd();
    void state_mapsToTheController();
    void state_holdsAnyNumber_thatQmlSets();
    void resetState_leavesPlaybackAlone_whileScrubbing();
    void rewindToStart_pausesAndAnnounces();
    void progress_scrubs();
    void heightChanged_comesOncePerHeight();
    void searchPath_isKept();
    void paint_drawsThePictureAtItsOwnSize();
    void pictures_takeTheMemoryOfTheOneBefore();
    void documentedExample_plays();
    void destruction_isQuick_atAnyMoment();
    void metaObject_keepsItsOrder();

private:
    QString clip(const QString &name, int first, int pictures, const QSize &size = QSize(64, 48),
        int rate = 50);

    QTemporaryDir m_directory;
    QString m_clip; // numbers 0 to 9
    QString m_other; // numbers 30 to 39, of another height
};

namespace {

/// A view whose content has one resource: the file that every source then is.
struct Stage
{
    explicit Stage(const QString &file = QString(), HRManager *manager = nullptr)
        : view(manager, nullptr)
    {
        auto *content = new HRXmlElement;
        content->setAttribute("resources", file);
        view.setContent(content);
        item = new HRVideoComponent(view.contentItem());
        announced.reset(new SignalCounter(item, &HRVideoComponent::loadProgressChanged));
    }

    void setFile(const QString &file)
    {
        view.content()->setAttribute("resources", file);
        announced->clear();
        item->setSource("clip");
    }

    /// Setting the source, opening it and its end have announced themselves.
    bool isDecoded() const { return announced->count() == 3; }

    /// What the item paints; transparent where it paints nothing.
    QImage painted()
    {
        QImage image(64, 48, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        item->paint(&painter);
        return image;
    }

    bool paintsNothing() { return qAlpha(painted().pixel(0, 0)) == 0; }
    int number() { return paintsNothing() ? -1 : TestClip::numberOf(painted()); }

    HRView view;
    HRVideoComponent *item;
    QScopedPointer<SignalCounter> announced;
};

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
    m_clip = clip("clip.mp4", 0, 10);
    m_other = clip("other.mp4", 30, 10, QSize(64, 64));
}

QString tst_HRVideoComponent::clip(
    const QString &name, int first, int pictures, const QSize &size, int rate)
{
    TestClip encoded;
    encoded.size = size;
    encoded.pictures = pictures;
    encoded.rate = rate;
    return encoded.write(m_directory.filePath(name), [first](const QSize &pictureSize, int number) {
        return TestClip::numbered(pictureSize, first + number);
    });
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
    Stage stage;
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
    Stage stage;
    stage.setFile(m_clip);
    QTRY_COMPARE(stage.number(), 0);
    QTRY_VERIFY(stage.isDecoded());

    stage.view.content()->setAttribute("resources", m_directory.filePath("missing.mp4"));
    stage.item->setSource("missing");
    QVERIFY(stage.paintsNothing());
    QCOMPARE(stage.item->source(), QString("missing"));

    // The clip before is still the one in effect.
    stage.item->setPosition(4);
    QTRY_COMPARE(stage.number(), 4);
}

void tst_HRVideoComponent::source_isEmpty_pausesAndClears()
{
    Stage stage;
    stage.setFile(m_clip);
    QTRY_VERIFY(stage.isDecoded());
    stage.item->play();
    stage.view.content()->setAttribute("resources", m_directory.path());
    stage.item->setSource("");
    QCOMPARE(stage.item->source(), QString());
    QCOMPARE(stage.item->state(), HRVideoComponent::pausedState);
    QCOMPARE(stage.item->position(), qint64(0));
}

void tst_HRVideoComponent::source_emitsNothing()
{
    Stage stage;
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
    const QString file = clip("megapixels.mp4", 0, 2, QSize(1600, 1000));
    HRContext context;
    if (megapixels.isValid())
        context.set(largestPictureKey, megapixels);
    RecordingHost host(context, {});
    MessageGuard messages;
    Stage stage(file, host.manager());
    stage.setFile(file);
    QStringList seen;
    QTRY_VERIFY(stage.number() == 0 || !(seen += messages.takeMessages()).isEmpty());
    QCOMPARE(stage.number() == 0, shown);
    const QStringList refusal{ "Could not allocate rgb frame in " + file };
    QCOMPARE(seen, shown ? QStringList() : refusal);
}

void tst_HRVideoComponent::clipBefore_neverFlashes()
{
    Stage stage;
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

void tst_HRVideoComponent::play_showsAllAndPauses()
{
    Stage stage;
    stage.setFile(clip("slow.mp4", 0, 10, QSize(64, 48), 20));
    QTRY_VERIFY(stage.isDecoded());
    QTRY_COMPARE(stage.number(), 0);
    QList<int> numbers;
    connect(stage.item, &HRVideoComponent::positionChanged, this, [&] {
        if (numbers.isEmpty() || numbers.last() != stage.number())
            numbers.append(stage.number());
    });
    SignalCounter states(stage.item, &HRVideoComponent::stateChanged);
    stage.item->play();
    QTRY_COMPARE(states.count(), 2);
    QCOMPARE(stage.item->state(), HRVideoComponent::pausedState);
    QCOMPARE(stage.item->position(), qint64(10));
    QCOMPARE(stage.item->progress(), 1.0);
    // A picture that the GUI thread is too late for is passed over, be it the last.
    QVERIFY2(stage.number() >= 8, qPrintable(QString::number(stage.number())));
    QVERIFY2(numbers.size() >= 6, qPrintable(QString::number(numbers.size())));
    QVERIFY(std::is_sorted(numbers.begin(), numbers.end()));
}

void tst_HRVideoComponent::play_restartsAtTheEnd()
{
    Stage stage;
    stage.setFile(m_clip);
    QTRY_VERIFY(stage.isDecoded());
    stage.item->play();
    QTRY_COMPARE(stage.item->position(), qint64(10));
    QTRY_COMPARE(stage.item->state(), HRVideoComponent::pausedState);
    stage.item->play();
    QVERIFY(stage.item->position() < 10);
    QTRY_COMPARE(stage.item->position(), qint64(10));
}

void tst_HRVideoComponent::state_mapsToTheController()
{
    Stage stage;
    stage.setFile(clip("long.mp4", 0, 50));
    QTRY_VERIFY(stage.isDecoded());
    stage.item->setState(HRVideoComponent::playingState);
    QCOMPARE(stage.item->state(), HRVideoComponent::playingState);
    stage.item->setState(HRVideoComponent::pausedState);
    QCOMPARE(stage.item->state(), HRVideoComponent::pausedState);
    stage.item->setState(HRVideoComponent::playingState);
    stage.item->setState(HRVideoComponent::resetState);
    QCOMPARE(stage.item->state(), HRVideoComponent::pausedState);
}

void tst_HRVideoComponent::state_holdsAnyNumber_thatQmlSets()
{
    QVERIFY((std::is_same_v<std::underlying_type_t<HRVideoComponent::VideoState>, int>));
    HRVideoComponent item;
    QQmlEngine engine;
    engine.rootContext()->setContextProperty("clip", &item);
    for (const QString number : { "99", "-1", "2147483647" }) {
        QQmlExpression expression(engine.rootContext(), nullptr, "clip.state = " + number);
        expression.evaluate();
        QVERIFY2(!expression.hasError(), qPrintable(expression.error().toString()));
        QCOMPARE(item.state(), HRVideoComponent::pausedState);
    }
}

void tst_HRVideoComponent::resetState_leavesPlaybackAlone_whileScrubbing()
{
    HRVideoComponent item;
    item.setState(HRVideoComponent::playingState);
    item.setScrubbing(true);
    QVERIFY(item.isScrubbing());
    SignalCounter loadProgress(&item, &HRVideoComponent::loadProgressChanged);
    item.setState(HRVideoComponent::resetState);
    QCOMPARE(loadProgress.count(), 1);
    QCOMPARE(item.state(), HRVideoComponent::playingState);
    item.setScrubbing(false);
    QVERIFY(!item.isScrubbing());
}

void tst_HRVideoComponent::rewindToStart_pausesAndAnnounces()
{
    Stage stage;
    stage.setFile(clip("rewind.mp4", 0, 50));
    QTRY_VERIFY(stage.isDecoded());
    stage.item->play();
    QTRY_VERIFY(stage.item->position() > 2);
    SignalCounter progress(stage.item, &HRVideoComponent::progressChanged);
    SignalCounter position(stage.item, &HRVideoComponent::positionChanged);
    stage.item->rewindToStart();
    QVERIFY(progress.count() >= 1);
    QVERIFY(position.count() >= 1);
    QCOMPARE(stage.item->state(), HRVideoComponent::pausedState);
    QTRY_COMPARE(stage.number(), 0);
    QCOMPARE(stage.item->position(), qint64(0));
}

void tst_HRVideoComponent::progress_scrubs()
{
    Stage stage;
    stage.setFile(m_clip);
    QTRY_VERIFY(stage.isDecoded());
    stage.item->setScrubbing(true);
    for (int number : { 7, 2, 5 }) {
        stage.item->setProgress(number / 10.0);
        QTRY_COMPARE(stage.number(), number);
        QCOMPARE(stage.item->position(), qint64(number));
    }
    stage.item->setProgress(qQNaN());
    QTRY_COMPARE(stage.number(), 0);
    stage.item->setPosition(-1); // the largest number there is: the last picture
    QTRY_COMPARE(stage.number(), 9);
}

void tst_HRVideoComponent::heightChanged_comesOncePerHeight()
{
    Stage stage;
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
    Stage stage;
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
    Stage stage;
    stage.setFile(encoded.write(m_directory.filePath("square.gif"), &movingSquare));
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

void tst_HRVideoComponent::documentedExample_plays()
{
    QFile file(DOCS_DIR "/video.md");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    const int begin = text.indexOf("```qml\n") + 7;
    Stage stage(m_clip);
    QQmlComponent component(stage.view.engine());
    component.setData(text.mid(begin, text.indexOf("```", begin) - begin), QUrl());
    QScopedPointer<QObject> object(component.create());
    QVERIFY2(object, qPrintable(component.errorString()));
    auto *item = qobject_cast<HRVideoComponent *>(object.data());
    QVERIFY(item);
    item->setParentItem(stage.view.contentItem());
    QTRY_COMPARE(item->source(), QString("clips/pen.mp4"));
    QTRY_COMPARE(item->position(), qint64(10));
    QCOMPARE(item->width(), 64.0);
}

void tst_HRVideoComponent::destruction_isQuick_atAnyMoment()
{
    MessageGuard messages;
    std::mt19937 random(5);
    const QString file = clip("destroy.mp4", 0, 50, QSize(320, 240));
    qint64 longest = 0;
    for (int i = 0; i < 200; ++i) {
        Stage stage;
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

void tst_HRVideoComponent::metaObject_keepsItsOrder()
{
    const QMetaObject &meta = HRVideoComponent::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods += meta.method(i).methodSignature();
    QCOMPARE(methods,
        (QStringList{ "sourceChanged()", "stateChanged()", "positionChanged()", "progressChanged()",
            "heightChanged()", "searchPathChanged()", "scrubbingChanged()",
            "contentHeightChanged()", "contentWidthChanged()", "loadProgressChanged()",
            "frameReady()", "play()", "pause()", "sourceChangedState()", "rewindToStart()",
            "controllerPositionChanged()", "pictureTime()" }));
    QStringList properties;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        properties += meta.property(i).name();
    QCOMPARE(properties,
        (QStringList{ "source", "state", "position", "progress", "searchPath", "scrubbing",
            "contentHeight", "contentWidth", "loadProgress" }));
}

QTEST_MAIN(tst_HRVideoComponent)
#include "tst_HRVideoComponent.moc"
