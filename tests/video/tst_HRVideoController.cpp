// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRVideoController.h"

#include "support/FakeSource.h"
#include "support/MessageGuard.h"
#include "support/SignalCounter.h"

#include <QElapsedTimer>
#include <QtTest>

#include <functional>
#include <limits>

using namespace Hintreels;

Q_DECLARE_METATYPE(std::function<void(Hintreels::HRVideoController *)>)

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
    void operations_areHarmless_withoutASource();
    void signals_keepTheirOrder();

    void thread_showsTheFirstPicture_asSoonAsItIsThere();
    void thread_showsThePictureAtTheNewPosition_whilePaused();
    void thread_playsEveryPictureAndPauses();
    void thread_playsAtTheClipsRate();
    void thread_neverRunsAhead_whateverIsAsked_data();
    void thread_neverRunsAhead_whateverIsAsked();
    void thread_waitsForTheWholeBacklog_afterAPause();
    void thread_pauses_whenItCatchesUpWithTheDecoder();
    void thread_stops_inAnInstant_data();
    void thread_stops_inAnInstant();
    void thread_obeysAtOnce_duringALongSleep();
    void thread_survivesHammering();
};

namespace {

const QUrl url("file:///a.mp4");

/// A controller over a source that the test feeds. The controller is on the heap, since a started
/// one deletes itself.
struct Playback
{
    explicit Playback(int pictures)
        : controller(new HRVideoController(&source))
        , display(controller, &HRVideoController::displayFrame)
        , state(controller, &HRVideoController::stateChanged)
        , position(controller, &HRVideoController::positionChanged)
    {
        if (pictures > 0)
            source.load(url, pictures);
    }

    ~Playback()
    {
        controller->quit();
        delete controller;
    }

    FakeSource source;
    HRVideoController *controller;
    SignalCounter display;
    SignalCounter state;
    SignalCounter position;
};

/// The moments, in milliseconds, at which a controller moved on while playing.
class Advances : public QObject
{
public:
    explicit Advances(HRVideoController *controller)
    {
        m_timer.start();
        // In the controller's thread; play() and its like announce from the test's.
        connect(
            controller, &HRVideoController::positionChanged, this,
            [this, controller] {
                if (QThread::currentThread() == controller)
                    m_moments.push_back(double(m_timer.nsecsElapsed()) / 1e6);
            },
            Qt::DirectConnection);
    }

    // When the controller has quit.
    size_t count() const { return m_moments.size(); }
    double gap(size_t index) const { return m_moments.at(index) - m_moments.at(index - 1); }

    /// By how much any came before its turn, with @p period between two; below 0 where none did.
    /// The first could come when this was made, and may itself be late.
    double aheadOf(double period) const
    {
        double ahead = -period;
        for (size_t i = 1; i < count(); ++i)
            ahead = std::max(ahead, double(i) * period - m_moments[i]);
        return ahead;
    }

private:
    QElapsedTimer m_timer;
    std::vector<double> m_moments;
};

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
}

void tst_HRVideoController::signals_keepTheirOrder()
{
    const QMetaObject &meta = HRVideoController::staticMetaObject;
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        names += meta.method(i).methodSignature();
    const QStringList expected{ "displayFrame()", "stateChanged()", "positionChanged()",
        "widthChanged()", "heightChanged()", "loadProgressChanged()", "streamEnded()",
        "sourceLoaded()" };
    QCOMPARE(names, expected);
}

void tst_HRVideoController::thread_showsTheFirstPicture_asSoonAsItIsThere()
{
    Playback playback(0);
    playback.controller->start();
    QThread::msleep(20); // it rests now
    QElapsedTimer timer;
    timer.start();
    playback.source.load(url, 1);
    QVERIFY(playback.display.wait(1000));
    QVERIFY2(timer.elapsed() < 80, qPrintable(QString("%1 ms").arg(timer.elapsed())));
    QCOMPARE(playback.controller->position(), size_t(0));
    QCOMPARE(TestClip::numberOf(playback.controller->currentFrame()), 0);
}

void tst_HRVideoController::thread_showsThePictureAtTheNewPosition_whilePaused()
{
    Playback playback(10);
    playback.controller->start();
    QVERIFY(playback.display.wait(1000));
    for (size_t index : { 4, 8, 2 }) {
        playback.controller->setPosition(index);
        QVERIFY(playback.display.wait(1000));
        QCOMPARE(TestClip::numberOf(playback.controller->currentFrame()), int(index));
        QCOMPARE(playback.controller->state(), HRVideoController::controllerPaused);
    }
}

void tst_HRVideoController::thread_playsEveryPictureAndPauses()
{
    Playback playback(6);
    QVector<size_t> shown;
    // In the controller's thread, at the moment at which the picture is due.
    connect(
        playback.controller, &HRVideoController::displayFrame, this,
        [&] { shown.append(playback.controller->position()); }, Qt::DirectConnection);
    playback.controller->play();
    playback.controller->start();
    QTRY_COMPARE(playback.controller->state(), HRVideoController::controllerPaused);
    // Twice: for play(), and at the end.
    QTRY_COMPARE(playback.state.count(), 2);
    QCOMPARE(playback.controller->position(), size_t(6));
    playback.controller->quit();
    QCOMPARE(shown, (QVector<size_t>{ 1, 2, 3, 4, 5, 6 }));
    QCOMPARE(playback.position.count(), 6);
    QVERIFY(playback.controller->lastFrameDisplayTime().isValid());
}

void tst_HRVideoController::thread_playsAtTheClipsRate()
{
    Playback playback(11);
    QElapsedTimer timer;
    timer.start();
    playback.controller->play();
    playback.controller->start();
    QTRY_COMPARE(playback.controller->state(), HRVideoController::controllerPaused);
    QVERIFY2(timer.elapsed() >= 11 * 20 - 2, qPrintable(QString("%1 ms").arg(timer.elapsed())));
}

void tst_HRVideoController::thread_neverRunsAhead_whateverIsAsked_data()
{
    using Ask = std::function<void(HRVideoController *)>;
    QTest::addColumn<Ask>("ask");
    QTest::newRow("a picture") << Ask([](HRVideoController *it) { it->setNeedFrame(true); });
    QTest::newRow("loaded") << Ask([](HRVideoController *it) { it->sourceLoaded(); });
    QTest::newRow("ended, scrubbing") << Ask([](HRVideoController *it) { it->streamEnded(); });
    QTest::newRow("play") << Ask([](HRVideoController *it) { it->play(); });
    QTest::newRow("pause and play") << Ask([](HRVideoController *it) {
        if (it->state() == HRVideoController::controllerPlaying)
            it->pause();
        else
            it->play();
    });
}

void tst_HRVideoController::thread_neverRunsAhead_whateverIsAsked()
{
    QFETCH(std::function<void(HRVideoController *)>, ask);
    Playback playback(30);
    const Advances advances(playback.controller);
    playback.controller->setScrubbing(true);
    playback.controller->play();
    playback.controller->start();
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 400) {
        ask(playback.controller);
        QTest::qWait(5);
    }
    playback.controller->quit();
    QVERIFY(advances.count() >= 4);
    QVERIFY2(advances.aheadOf(20) < 1.0, qPrintable(QString::number(advances.aheadOf(20))));
}

void tst_HRVideoController::thread_waitsForTheWholeBacklog_afterAPause()
{
    Playback playback(30);
    playback.source.rate = 10.0;
    const Advances advances(playback.controller);
    playback.controller->play();
    playback.controller->start();
    QTRY_COMPARE(playback.controller->position(), size_t(2)); // of which none was fetched
    QElapsedTimer timer;
    timer.start();
    playback.controller->pause();
    QTRY_VERIFY(timer.elapsed() > 120); // the next picture would have been due
    playback.display.clear();
    playback.controller->setNeedFrame(true);
    QTRY_VERIFY(playback.display.count() > 0); // it rests
    // The last picture is said to be still to come, so no time has passed since.
    playback.controller->setLastFrameDisplayTime(QDateTime::currentDateTime().addDays(1));
    playback.controller->play();
    QTRY_COMPARE(playback.controller->position(), size_t(4));
    playback.controller->quit();
    QVERIFY2(advances.gap(3) >= 199.0, qPrintable(QString::number(advances.gap(3))));
}

void tst_HRVideoController::thread_pauses_whenItCatchesUpWithTheDecoder()
{
    Playback playback(2);
    playback.controller->play();
    playback.controller->start();
    QTRY_COMPARE(playback.controller->state(), HRVideoController::controllerPaused);
    QCOMPARE(playback.controller->position(), size_t(2));
    playback.source.push(3);
    playback.controller->play();
    QTRY_COMPARE(playback.controller->state(), HRVideoController::controllerPaused);
    QCOMPARE(playback.controller->position(), size_t(5));
}

void tst_HRVideoController::thread_stops_inAnInstant_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<bool>("playing");
    QTest::newRow("resting") << 50.0 << false;
    QTest::newRow("playing") << 50.0 << true;
    QTest::newRow("one picture in 1000 s") << 0.001 << true;
    QTest::newRow("no rate") << 0.0 << true;
    QTest::newRow("rate is not a number") << qQNaN() << true;
    QTest::newRow("negative rate") << -1.0 << true;
}

void tst_HRVideoController::thread_stops_inAnInstant()
{
    QFETCH(double, rate);
    QFETCH(bool, playing);
    MessageGuard messages;
    Playback playback(10);
    playback.source.rate = rate;
    playback.controller->start();
    if (playing)
        playback.controller->play();
    QTest::qWait(30);
    QElapsedTimer timer;
    timer.start();
    playback.controller->quit();
    QVERIFY2(timer.elapsed() < 80, qPrintable(QString("%1 ms").arg(timer.elapsed())));
}

void tst_HRVideoController::thread_obeysAtOnce_duringALongSleep()
{
    Playback playback(10);
    playback.source.rate = 0.001;
    playback.controller->play();
    playback.controller->start();
    QTRY_COMPARE(playback.controller->position(), size_t(1));
    QTest::qWait(20);
    playback.controller->setPosition(6);
    QTRY_COMPARE_WITH_TIMEOUT(playback.controller->position(), size_t(7), 1000);

    QTest::qWait(20);
    playback.display.clear();
    playback.controller->pause();
    playback.controller->setPosition(3);
    QTRY_COMPARE_WITH_TIMEOUT(playback.display.count(), 1, 1000);
    QCOMPARE(playback.controller->position(), size_t(3));
}

void tst_HRVideoController::thread_survivesHammering()
{
    MessageGuard messages;
    Playback playback(10);
    playback.source.rate = 5000.0;
    playback.source.start();
    playback.controller->start();
    for (int i = 0; i < 300; ++i) {
        playback.controller->setProgress(i % 11 / 10.0);
        playback.controller->play();
        playback.controller->currentFrame();
        if (i % 3 == 0)
            playback.controller->pause();
        if (i % 50 == 0)
            playback.controller->setSource(QUrl(QString("file:///%1").arg(i)));
        QCoreApplication::processEvents();
    }
    playback.controller->quit();
    playback.source.quit();
    QVERIFY(playback.controller->isFinished());
}

QTEST_GUILESS_MAIN(tst_HRVideoController)
#include "tst_HRVideoController.moc"
