// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRVideoController.h"

#include "support/MessageGuard.h"
#include "video/Playback.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QtTest>

#include <functional>

using namespace Hintreels;

using Ask = std::function<void(HRVideoController *)>;

Q_DECLARE_METATYPE(Ask)

/// A controller whose thread runs.
class tst_HRVideoControllerThread : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thread_showsTheFirstPicture_whenItIsThere();
    void thread_showsThePictureAtTheNewPosition_whilePaused();
    void thread_playsEveryPictureAndPauses();
    void thread_playsAtTheClipsRate();
    void thread_showsAPictureAsLongAsTheFileSays();
    void thread_neverRunsAhead_whateverIsAsked_data();
    void thread_neverRunsAhead_whateverIsAsked();
    void thread_waitsForTheWholeBacklog_afterAPause();
    void thread_pauses_whenItCatchesUpWithTheDecoder();
    void thread_waits_whereItAwaitsTheDecoder();
    void thread_stops_whateverItDoes_data();
    void thread_stops_whateverItDoes();
    void thread_obeysAtOnce_duringALongSleep();
    void thread_survivesHammering();
};

namespace {

constexpr int longTime = 10000; // ms: other programs may keep the processor busy

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

} // namespace

void tst_HRVideoControllerThread::thread_showsTheFirstPicture_whenItIsThere()
{
    Playback playback(0);
    playback.controller->start();
    playback.source.load(Playback::url(), 1);
    QTRY_COMPARE(playback.display.count(), 1);
    QCOMPARE(playback.controller->position(), size_t(0));
    QCOMPARE(TestClip::numberOf(playback.controller->currentFrame()), 0);
}

void tst_HRVideoControllerThread::thread_showsThePictureAtTheNewPosition_whilePaused()
{
    Playback playback(10);
    playback.controller->start();
    QVERIFY(playback.display.wait(longTime));
    for (size_t index : { 4, 8, 2 }) {
        playback.controller->setPosition(index);
        QVERIFY(playback.display.wait(longTime));
        QCOMPARE(TestClip::numberOf(playback.controller->currentFrame()), int(index));
        QCOMPARE(playback.controller->state(), HRVideoController::controllerPaused);
    }
}

void tst_HRVideoControllerThread::thread_playsEveryPictureAndPauses()
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

void tst_HRVideoControllerThread::thread_playsAtTheClipsRate()
{
    Playback playback(11);
    QElapsedTimer timer;
    timer.start();
    playback.controller->play();
    playback.controller->start();
    QTRY_COMPARE(playback.controller->state(), HRVideoController::controllerPaused);
    QVERIFY2(timer.elapsed() >= 11 * 20 - 2, qPrintable(QString("%1 ms").arg(timer.elapsed())));
}

void tst_HRVideoControllerThread::thread_showsAPictureAsLongAsTheFileSays()
{
    Playback byRate(50); // 1 s
    Playback byFile(0);
    byFile.source.load(Playback::url(), 0);
    const HRVideoFrame picture(TestClip::numbered(QSize(40, 30), 0), 0);
    for (double start : { 0.0, 0.001, 10.0, 10.001, 10.002 })
        byFile.source.pushFrame(picture, start, 0.001);
    byFile.source.setTimedByFile(true);
    byRate.controller->play();
    byFile.controller->play();
    byFile.controller->start();
    byRate.controller->start();
    QTRY_COMPARE(byRate.controller->state(), HRVideoController::controllerPaused);
    QTRY_COMPARE(byFile.controller->position(), size_t(1)); // and there it stays for 10 s
    QCOMPARE(byFile.controller->state(), HRVideoController::controllerPlaying);

    byFile.controller->setPosition(2);
    QTRY_COMPARE(byFile.controller->state(), HRVideoController::controllerPaused);
    QCOMPARE(byFile.controller->position(), size_t(5));
}

void tst_HRVideoControllerThread::thread_neverRunsAhead_whateverIsAsked_data()
{
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

void tst_HRVideoControllerThread::thread_neverRunsAhead_whateverIsAsked()
{
    QFETCH(Ask, ask);
    Playback playback(30);
    const Advances advances(playback.controller);
    playback.controller->setScrubbing(true);
    playback.controller->play();
    playback.controller->start();
    const QDeadlineTimer giveUp(longTime);
    while (playback.controller->position() < 6 && !giveUp.hasExpired()) {
        ask(playback.controller);
        QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
    }
    playback.controller->quit();
    QVERIFY(advances.count() >= 6);
    QVERIFY2(advances.aheadOf(20) < 1.0, qPrintable(QString::number(advances.aheadOf(20))));
}

void tst_HRVideoControllerThread::thread_waitsForTheWholeBacklog_afterAPause()
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

void tst_HRVideoControllerThread::thread_pauses_whenItCatchesUpWithTheDecoder()
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

void tst_HRVideoControllerThread::thread_waits_whereItAwaitsTheDecoder()
{
    Playback playback(2);
    playback.controller->setAwaitsDecoder(true);
    playback.controller->play();
    playback.controller->start();
    QTRY_COMPARE(playback.controller->position(), size_t(2));
    playback.source.push(3);
    QTRY_COMPARE(playback.controller->position(), size_t(5));
    playback.source.notifyStreamEnded();
    QCOMPARE(playback.controller->state(), HRVideoController::controllerPlaying);
    playback.controller->play(); // which does not start over there
    QCOMPARE(playback.controller->position(), size_t(5));

    playback.controller->setAwaitsDecoder(false);
    QTRY_COMPARE(playback.controller->state(), HRVideoController::controllerPaused);
    QCOMPARE(playback.controller->position(), size_t(5));
}

void tst_HRVideoControllerThread::thread_stops_whateverItDoes_data()
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

void tst_HRVideoControllerThread::thread_stops_whateverItDoes()
{
    QFETCH(double, rate);
    QFETCH(bool, playing);
    MessageGuard messages;
    Playback playback(10);
    playback.source.rate = rate;
    playback.controller->start();
    if (playing)
        playback.controller->play();
    QTRY_VERIFY(playing ? playback.controller->position() > 0 : playback.display.count() > 0);
    playback.controller->quit(); // which leaves a message where it has to terminate
    QVERIFY(playback.controller->isFinished());
}

void tst_HRVideoControllerThread::thread_obeysAtOnce_duringALongSleep()
{
    Playback playback(10);
    playback.source.rate = 0.001;
    playback.controller->play();
    playback.controller->start();
    QTRY_COMPARE(playback.controller->position(), size_t(1));
    playback.controller->setPosition(6);
    QTRY_COMPARE_WITH_TIMEOUT(playback.controller->position(), size_t(7), longTime);

    playback.controller->pause();
    QTRY_COMPARE(playback.display.count(), 2);
    playback.display.clear();
    playback.controller->setPosition(3);
    QTRY_COMPARE_WITH_TIMEOUT(playback.display.count(), 1, longTime);
    QCOMPARE(playback.controller->position(), size_t(3));
}

void tst_HRVideoControllerThread::thread_survivesHammering()
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

QTEST_GUILESS_MAIN(tst_HRVideoControllerThread)
#include "tst_HRVideoControllerThread.moc"
