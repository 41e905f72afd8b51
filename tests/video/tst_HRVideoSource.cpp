// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRVideoSource.h"

#include "support/FakeSource.h"
#include "support/MessageGuard.h"
#include "support/MetaMembers.h"
#include "support/Pauses.h"
#include "support/SignalCounter.h"

#include <QElapsedTimer>
#include <QtTest>

#include <thread>

using namespace Hintreels;

class tst_HRVideoSource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newSource_idlesWithoutSourceAndPictures();
    void setSource_refuses_data();
    void setSource_refuses();
    void setSource_queuesEach_andTheLastWins();
    void processActionQueue_appliesOneChangeAPass();
    void changeSetAction_ignoresMinusOne();
    void changeSetAction_emitsWithNoLockHeld();
    void close_asksForNothing();
    void setupSource_startsAFreshCacheAndAsksForDecoding();
    void setupSource_asksForIdling_whenTheSourceIsEmpty();
    void pictures_areAbsent_withoutACache();
    void getFrame_returnsNull_beyondTheLast();
    void pictures_areTimedByTheFile_whenAskedFor();
    void pictures_areTimedAnew_withEachClip();
    void indexAt_goesByTheRate_asARule();
    void clearChanges_dropsWhatWasAskedFor();
    void loadSource_emitsSourceLoaded();
    void notifyStreamEnded_emitsStreamEnded();
    void changes_knowTheirTypes();
    void quit_isSilent_whenNeverStarted();
    void quit_wakesARestingThread();
    void requests_wakeARestingThread();
    void thread_doesNotRest_whileChangesArePending();
    void requests_surviveHammering();
    void signals_keepTheirOrder();
};

namespace {

const QUrl urlA("file:///a.mp4");
const QUrl urlB("file:///b.mp4");

/// Counts what its thread does until the twentieth source is taken.
class RestCounter : public FakeSource
{
public:
    ~RestCounter() override { quit(); }

    std::atomic<int> passes{ 0 };
    std::atomic<int> restsWithChanges{ 0 };

protected:
    void run() override
    {
        while (!shouldQuit()) {
            const bool isLast = source() == QUrl("file:///19");
            passes += isLast ? 0 : 1;
            processActionQueue();
            QElapsedTimer timer;
            timer.start();
            rest();
            const bool rested = timer.elapsed() >= 50; // of 100 ms
            restsWithChanges += rested && source() != QUrl("file:///19") ? 1 : 0;
        }
    }
};

} // namespace

void tst_HRVideoSource::newSource_idlesWithoutSourceAndPictures()
{
    FakeSource source;
    QCOMPARE(source.action(), HRVideoSource::idleAction);
    QVERIFY(source.source().isEmpty());
    QVERIFY(!source.shouldQuit());
}

void tst_HRVideoSource::setSource_refuses_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::newRow("the one in effect") << urlA;
    QTest::newRow("empty") << QUrl();
    QTest::newRow("empty text") << QUrl("");
    QTest::newRow("invalid") << QUrl("http://[broken");
}

void tst_HRVideoSource::setSource_refuses()
{
    QFETCH(QUrl, url);
    FakeSource source;
    source.changeSetSource(urlA);
    SignalCounter actions(&source, &HRVideoSource::actionChanged);
    QVERIFY(!source.setSource(url));
    source.processActionQueue();
    QCOMPARE(actions.count(), 0);
    QCOMPARE(source.source(), urlA);
}

void tst_HRVideoSource::setSource_queuesEach_andTheLastWins()
{
    FakeSource source;
    QVERIFY(source.setSource(urlA));
    QVERIFY(source.setSource(urlB));
    QVERIFY(source.source().isEmpty());
    source.processActionQueue();
    QCOMPARE(source.source(), urlA);
    QCOMPARE(source.action(), HRVideoSource::loadAction);
    source.processActionQueue();
    QCOMPARE(source.source(), urlB);
}

void tst_HRVideoSource::processActionQueue_appliesOneChangeAPass()
{
    FakeSource source;
    SignalCounter actions(&source, &HRVideoSource::actionChanged);
    source.setAction(HRVideoSource::closeAction);
    source.setAction(HRVideoSource::decodeAction);
    source.processActionQueue();
    QCOMPARE(source.action(), HRVideoSource::closeAction);
    source.processActionQueue();
    QCOMPARE(source.action(), HRVideoSource::decodeAction);
    source.processActionQueue();
    QCOMPARE(actions.count(), 2);
}

void tst_HRVideoSource::changeSetAction_ignoresMinusOne()
{
    FakeSource source;
    SignalCounter actions(&source, &HRVideoSource::actionChanged);
    source.changeSetAction(HRVideoSource::Action(-1));
    QCOMPARE(actions.count(), 0);
    QCOMPARE(source.action(), HRVideoSource::idleAction);
}

void tst_HRVideoSource::changeSetAction_emitsWithNoLockHeld()
{
    FakeSource source;
    bool reached = false;
    connect(&source, &HRVideoSource::actionChanged, this, [&] {
        // Another thread can ask while the signal is being delivered.
        std::thread([&] { reached = source.action() == HRVideoSource::closeAction; }).join();
    });
    source.changeSetAction(HRVideoSource::closeAction);
    QVERIFY(reached);
}

void tst_HRVideoSource::close_asksForNothing()
{
    FakeSource source;
    source.changeSetSource(urlA);
    SignalCounter actions(&source, &HRVideoSource::actionChanged);
    source.close();
    source.processActionQueue();
    QCOMPARE(actions.count(), 0);
    QCOMPARE(source.source(), urlA);
}

void tst_HRVideoSource::setupSource_startsAFreshCacheAndAsksForDecoding()
{
    FakeSource source;
    SignalCounter changed(&source, &HRVideoSource::sourceChanged);
    source.load(urlA, 3);
    QCOMPARE(source.loadedFrameCount(), size_t(3));
    QCOMPARE(source.totalFrameCount(), size_t(3));
    source.processActionQueue();
    QCOMPARE(source.action(), HRVideoSource::decodeAction);

    // Also for the same clip: it is decoded again.
    source.setupSource();
    QCOMPARE(source.totalFrameCount(), size_t(0));
    QCOMPARE(changed.count(), 2);
}

void tst_HRVideoSource::setupSource_asksForIdling_whenTheSourceIsEmpty()
{
    FakeSource source;
    source.changeSetAction(HRVideoSource::loadAction);
    source.setupSource();
    source.processActionQueue();
    QCOMPARE(source.action(), HRVideoSource::idleAction);
}

void tst_HRVideoSource::pictures_areAbsent_withoutACache()
{
    FakeSource source;
    QVERIFY(!source.isFrameAvailable(0));
    QCOMPARE(source.loadedFrameCount(), size_t(0));
    QCOMPARE(source.totalFrameCount(), size_t(0));
    source.push(1);
    QVERIFY(source.getFrame(0).isNull());
}

void tst_HRVideoSource::getFrame_returnsNull_beyondTheLast()
{
    FakeSource source;
    source.load(urlA, 2);
    QCOMPARE(TestClip::numberOf(source.getFrame(1)), 1);
    QVERIFY(source.isFrameAvailable(1));
    QVERIFY(!source.isFrameAvailable(2));
    QVERIFY(source.getFrame(2).isNull());
}

void tst_HRVideoSource::pictures_areTimedByTheFile_whenAskedFor()
{
    FakeSource source;
    source.load(urlA, 0);
    HRVideoFrame picture(TestClip::numbered(QSize(4, 3), 0), 7);
    source.pushFrame(picture, 1.0, 0.5);
    source.pushFrame(picture, 3.5, 0.5);
    source.pushFrame(picture);
    QCOMPARE(source.getFrame(1).pts(), 7.0);
    QCOMPARE(source.shownByFile(0), 0.0);
    QCOMPARE(source.clipLength(), 3 / 50.0);

    source.setTimedByFile(true);
    QVERIFY(source.isTimedByFile());
    QCOMPARE(source.getFrame(1).pts(), 2.5);
    QCOMPARE(source.shownByFile(0), 2.5);
    QCOMPARE(source.shownByFile(2), 1 / 50.0); // of which nothing is known
    QCOMPARE(source.shownByFile(3), 0.0); // which there is not
    QCOMPARE(source.clipLength(), 2.5 + 2 / 50.0);
    QCOMPARE(source.indexAt(2.4), size_t(0));
    QCOMPARE(source.indexAt(2.5), size_t(1));
    QVERIFY(source.getFrame(3).isNull());
}

void tst_HRVideoSource::pictures_areTimedAnew_withEachClip()
{
    FakeSource source;
    source.setTimedByFile(true);
    for (const QUrl &url : { urlA, urlB }) {
        source.load(url, 0);
        QCOMPARE(source.clipLength(), 0.0);
        source.pushFrame(HRVideoFrame(TestClip::numbered(QSize(4, 3), 0), 0), 5.0, 1.0);
        QCOMPARE(source.getFrame(0).pts(), 0.0);
        QCOMPARE(source.clipLength(), 1.0);
    }
    source.dropClip();
    QCOMPARE(source.clipLength(), 0.0);
}

void tst_HRVideoSource::indexAt_goesByTheRate_asARule()
{
    FakeSource source;
    QCOMPARE(source.indexAt(1.0), size_t(0));
    source.rate = 30.0;
    source.load(urlA, 10);
    for (size_t i = 0; i < 10; ++i)
        QCOMPARE(source.indexAt(double(i) / 30.0), i);
    QCOMPARE(source.indexAt(0.99 / 30.0), size_t(0));
    QCOMPARE(source.indexAt(-1.0), size_t(0));
    QCOMPARE(source.indexAt(qQNaN()), size_t(0));
    QCOMPARE(source.indexAt(1e300), size_t(9));
    source.rate = 0.0;
    QCOMPARE(source.indexAt(1.0), size_t(0));
}

void tst_HRVideoSource::clearChanges_dropsWhatWasAskedFor()
{
    FakeSource source;
    source.setSource(urlA);
    source.setAction(HRVideoSource::closeAction);
    source.clearChanges();
    source.processActionQueue();
    QCOMPARE(source.action(), HRVideoSource::idleAction);
    QVERIFY(source.source().isEmpty());
}

void tst_HRVideoSource::loadSource_emitsSourceLoaded()
{
    FakeSource source;
    SignalCounter loaded(&source, &HRVideoSource::sourceLoaded);
    QVERIFY(source.loadSource());
    QCOMPARE(loaded.count(), 1);
}

void tst_HRVideoSource::notifyStreamEnded_emitsStreamEnded()
{
    FakeSource source;
    SignalCounter ended(&source, &HRVideoSource::streamEnded);
    source.notifyStreamEnded();
    QCOMPARE(ended.count(), 1);
}

void tst_HRVideoSource::changes_knowTheirTypes()
{
    const HRVideoSourceChange change(HRVideoSource::closeAction);
    const HRVideoSourceSourceChange sourceChange(urlA);
    QCOMPARE(change.type(), 1);
    QCOMPARE(change.action, HRVideoSource::closeAction);
    QCOMPARE(sourceChange.type(), 3);
    QCOMPARE(sourceChange.action, HRVideoSource::loadAction);
    QCOMPARE(sourceChange.url, urlA);
}

void tst_HRVideoSource::quit_isSilent_whenNeverStarted()
{
    MessageGuard messages;
    FakeSource source;
    source.quit();
    QVERIFY(source.shouldQuit());
}

void tst_HRVideoSource::quit_wakesARestingThread()
{
    MessageGuard messages;
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 50; ++i) {
        FakeSource source;
        source.start();
        source.setSource(urlA);
        QVERIFY(lookUntil([&] { return source.source() == urlA; })); // nothing is left to do
        source.quit();
    }
    // Threads that look every 100 ms take 5 s in all.
    QVERIFY2(timer.elapsed() < 2500, qPrintable(QString("%1 ms").arg(timer.elapsed())));
}

void tst_HRVideoSource::requests_wakeARestingThread()
{
    FakeSource source;
    source.start();
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 100; ++i) {
        const QUrl url(QString("file:///%1").arg(i));
        source.setSource(url);
        QVERIFY(lookUntil([&] { return source.source() == url; }));
    }
    // A thread that looks every 100 ms takes 10 s in all.
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString("%1 ms").arg(timer.elapsed())));
}

void tst_HRVideoSource::thread_doesNotRest_whileChangesArePending()
{
    RestCounter source;
    for (int i = 0; i < 20; ++i)
        source.setSource(QUrl(QString("file:///%1").arg(i)));
    source.start();
    QTRY_COMPARE(source.source(), QUrl("file:///19"));
    QCOMPARE(source.restsWithChanges.load(), 0);
    // One change a pass.
    QCOMPARE(source.passes.load(), 20);
    source.quit();
}

void tst_HRVideoSource::requests_surviveHammering()
{
    FakeSource source;
    std::atomic<bool> done(false);
    const auto hammer = [&](int seed) {
        for (int i = 0; !done; ++i) {
            source.setSource(QUrl(QString("file:///%1/%2").arg(seed).arg(i)));
            source.setAction(HRVideoSource::idleAction);
            if (i % 64 == 0)
                source.clearChanges();
        }
    };
    std::thread first(hammer, 1);
    std::thread second(hammer, 2);
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 300) {
        source.processActionQueue();
        source.setupSource();
        source.push(1);
    }
    done = true;
    first.join();
    second.join();

    source.clearChanges();
    QVERIFY(source.setSource(urlA));
    source.processActionQueue();
    QCOMPARE(source.source(), urlA);
}

void tst_HRVideoSource::signals_keepTheirOrder()
{
    const QByteArrayList expected{ "frameReady()", "sourceChanged()", "streamEnded()",
        "sourceLoaded()", "actionChanged()", "positionChanged()", "loadProgressChanged()" };
    QCOMPARE(methodsOf(HRVideoSource::staticMetaObject), expected);
}

QTEST_GUILESS_MAIN(tst_HRVideoSource)
#include "tst_HRVideoSource.moc"
