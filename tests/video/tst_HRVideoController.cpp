// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRVideoController.h"

#include "video/Playback.h"

#include "support/MetaMembers.h"

#include <QtTest>

#include <limits>

using namespace Hintreels;

class tst_HRVideoController : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newController_isPausedAtTheStart();
    void play_restarts_atTheEnd();
    void play_parksThePosition_onAnEmptyCache();
    void setPosition_clamps();
    void setProgress_clamps_data();
    void setProgress_clamps();
    void progress_isZero_withoutPictures();
    void currentFrame_countsAsShown();
    void getFrame_returnsNull_forIndexesAbove32Bits();
    void setSource_pausesAndRewinds();
    void setSource_keepsTheClip_whenTheSourceRefuses();
    void streamEnded_pauses_unlessScrubbing();
    void sourceLoaded_announcesSizes();
    void loadProgressChanged_isRelayed();
    void close_isTheSources();
    void operations_areHarmless_withoutASource();
    void signals_keepTheirOrder();
};

namespace {

const QUrl url = Playback::url();
constexpr size_t wrapped = std::numeric_limits<size_t>::max();

} // namespace

void tst_HRVideoController::newController_isPausedAtTheStart()
{
    Playback playback(0);
    QCOMPARE(playback.controller->objectName(), QString("Controller"));
    QCOMPARE(playback.controller->state(), HRVideoController::controllerPaused);
    QCOMPARE(playback.controller->position(), size_t(0));
    QVERIFY(!playback.controller->isScrubbing());
    QVERIFY(!playback.controller->lastFrameDisplayTime().isValid());
    QVERIFY(!playback.controller->shouldQuit());
    QCOMPARE(playback.controller->frameWidth(), 40.0);
    QCOMPARE(playback.controller->frameHeight(), 30.0);
}

void tst_HRVideoController::play_restarts_atTheEnd()
{
    Playback playback(10);
    playback.controller->setPosition(9);
    playback.controller->play();
    QCOMPARE(playback.controller->position(), size_t(9));
    QCOMPARE(playback.state.count(), 1);

    playback.source.load(url, 9);
    playback.controller->play();
    QCOMPARE(playback.controller->position(), size_t(0));
    QCOMPARE(playback.controller->state(), HRVideoController::controllerPlaying);
}

void tst_HRVideoController::play_parksThePosition_onAnEmptyCache()
{
    Playback playback(0);
    playback.controller->play();
    QCOMPARE(playback.controller->position(), wrapped);
    QVERIFY(playback.controller->currentFrame().isNull());
    playback.source.load(url, 2);
    QVERIFY(playback.controller->currentFrame().isNull());
    playback.controller->setPosition(0);
    QVERIFY(!playback.controller->currentFrame().isNull());
}

void tst_HRVideoController::setPosition_clamps()
{
    Playback playback(10);
    playback.controller->setPosition(100);
    QCOMPARE(playback.controller->position(), size_t(9));
    playback.controller->setPosition(3);
    QCOMPARE(playback.controller->position(), size_t(3));
    QCOMPARE(playback.position.count(), 2);
}

void tst_HRVideoController::setProgress_clamps_data()
{
    QTest::addColumn<double>("progress");
    QTest::addColumn<int>("position");
    QTest::newRow("half") << 0.5 << 5;
    QTest::newRow("all") << 1.0 << 9;
    QTest::newRow("above") << 1e300 << 9;
    QTest::newRow("endless") << qInf() << 9;
    QTest::newRow("below") << -0.5 << 0;
    QTest::newRow("endless below") << -qInf() << 0;
    QTest::newRow("not a number") << qQNaN() << 0;
}

void tst_HRVideoController::setProgress_clamps()
{
    QFETCH(double, progress);
    QFETCH(int, position);
    Playback playback(10);
    playback.controller->setProgress(progress);
    QCOMPARE(playback.controller->position(), size_t(position));
    QCOMPARE(playback.controller->progress(), position / 10.0);
    QCOMPARE(playback.position.count(), 1);
}

void tst_HRVideoController::progress_isZero_withoutPictures()
{
    Playback playback(0);
    QCOMPARE(playback.controller->progress(), 0.0);
    QCOMPARE(playback.controller->loadProgress(), 0.0);
    playback.source.load(url, 1);
    QCOMPARE(playback.controller->loadProgress(), 1.0);
}

void tst_HRVideoController::currentFrame_countsAsShown()
{
    Playback playback(10);
    playback.controller->setPosition(7);
    QCOMPARE(TestClip::numberOf(playback.controller->currentFrame()), 7);
    QCOMPARE(TestClip::numberOf(playback.controller->getFrame(2)), 2);
    QCOMPARE(playback.controller->frameCount(), size_t(10));
}

void tst_HRVideoController::getFrame_returnsNull_forIndexesAbove32Bits()
{
    Playback playback(3);
    QVERIFY(playback.controller->getFrame(size_t(1) << 32).isNull());
}

void tst_HRVideoController::setSource_pausesAndRewinds()
{
    Playback playback(10);
    SignalCounter loadProgress(playback.controller, &HRVideoController::loadProgressChanged);
    playback.controller->setPosition(5);
    playback.controller->play();
    playback.state.clear();
    playback.position.clear();

    QVERIFY(playback.controller->setSource(QUrl("file:///b.mp4")));

    QCOMPARE(playback.controller->state(), HRVideoController::controllerPaused);
    QCOMPARE(playback.controller->position(), size_t(0));
    QCOMPARE(playback.state.count(), 2);
    QCOMPARE(playback.position.count(), 1);
    QCOMPARE(loadProgress.count(), 1);
    playback.source.processActionQueue(); // what setting up the first clip asked for
    playback.source.processActionQueue();
    QCOMPARE(playback.controller->source(), QUrl("file:///b.mp4"));
}

void tst_HRVideoController::setSource_keepsTheClip_whenTheSourceRefuses()
{
    Playback playback(10);
    playback.controller->setPosition(5);
    QVERIFY(!playback.controller->setSource(QUrl()));
    QVERIFY(!playback.controller->setSource(url));
    QCOMPARE(playback.controller->position(), size_t(0));
    QCOMPARE(playback.controller->frameCount(), size_t(10));
}

void tst_HRVideoController::streamEnded_pauses_unlessScrubbing()
{
    Playback playback(10);
    playback.controller->play();
    playback.controller->setScrubbing(true);
    playback.state.clear();
    playback.source.notifyStreamEnded();
    QCOMPARE(playback.controller->state(), HRVideoController::controllerPlaying);
    QCOMPARE(playback.state.count(), 0);

    playback.controller->setScrubbing(false);
    playback.source.notifyStreamEnded();
    QCOMPARE(playback.controller->state(), HRVideoController::controllerPaused);
    QCOMPARE(playback.state.count(), 1);
}

void tst_HRVideoController::sourceLoaded_announcesSizes()
{
    Playback playback(0);
    SignalCounter width(playback.controller, &HRVideoController::widthChanged);
    SignalCounter height(playback.controller, &HRVideoController::heightChanged);
    SignalCounter loadProgress(playback.controller, &HRVideoController::loadProgressChanged);
    playback.source.loadSource();
    QCOMPARE(width.count(), 1);
    QCOMPARE(height.count(), 1);
    QCOMPARE(loadProgress.count(), 1);
}

void tst_HRVideoController::loadProgressChanged_isRelayed()
{
    Playback playback(0);
    SignalCounter loadProgress(playback.controller, &HRVideoController::loadProgressChanged);
    Q_EMIT playback.source.loadProgressChanged();
    QCOMPARE(loadProgress.count(), 1);
}

void tst_HRVideoController::close_isTheSources()
{
    struct Source : FakeSource
    {
        void close() override { ++closes; }
        int closes = 0;
    };
    Source source;
    HRVideoController(&source).close();
    QCOMPARE(source.closes, 1);
}

void tst_HRVideoController::operations_areHarmless_withoutASource()
{
    HRVideoController controller(nullptr);
    controller.play();
    controller.pause();
    controller.setProgress(0.5);
    controller.close();
    QVERIFY(!controller.setSource(url));
    QVERIFY(controller.source().isEmpty());
    QVERIFY(controller.currentFrame().isNull());
    QCOMPARE(controller.loadProgress(), 0.0);
    QCOMPARE(controller.frameCount(), size_t(0));
    QCOMPARE(controller.frameWidth(), 0.0);
    QCOMPARE(controller.frameHeight(), 0.0);
}

void tst_HRVideoController::signals_keepTheirOrder()
{
    const QByteArrayList expected{ "displayFrame()", "stateChanged()", "positionChanged()",
        "widthChanged()", "heightChanged()", "loadProgressChanged()", "streamEnded()",
        "sourceLoaded()" };
    QCOMPARE(methodsOf(HRVideoController::staticMetaObject), expected);
}

QTEST_GUILESS_MAIN(tst_HRVideoController)
#include "tst_HRVideoController.moc"
