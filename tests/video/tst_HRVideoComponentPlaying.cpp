// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRVideoComponent.h"

#include "ui/items/qmlTypes_p.h"
#include "video/ItemStage.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>
#include <QtTest>

#include <functional>
#include <type_traits>

using namespace Hintreels;

class tst_HRVideoComponentPlaying : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void play_showsAllAndPauses();
    void play_restartsAtTheEnd();
    void state_mapsToTheController();
    void state_holdsAnyNumber_thatQmlSets();
    void resetState_leavesPlaybackAlone_whileScrubbing();
    void rewindToStart_pausesAndAnnounces();
    void progress_scrubs();
    void keepPlaying_playsToTheEnd();
    void keepPlaying_startsOver_whenSetAtTheEnd();
    void keepPlaying_startsOver_whenItLoops();
    void keepPlaying_waitsForTheFirstPicture();
    void keepPlaying_goesOn_withTheNextClip();
    void keepPlaying_rests_whileHidden();
    void keepPlaying_rests_whileScrubbing();
    void keepPlaying_ends_whenPaused_data();
    void keepPlaying_ends_whenPaused();
    void finished_comes_whenPlayedByHand();
    void ended_isOver_whenTheClipIsLeft_data();
    void ended_isOver_whenTheClipIsLeft();
    void decoded_isToldOfEachClip();
    void time_isToldOfEachPicture();
    void documentedExample_plays();

private:
    NumberedClips m_clips;
    QString m_clip; // numbers 0 to 9
    QString m_slow; // 50 pictures in 5 s
};

namespace {

/// An item in a window that is shown, as a popup's is.
struct Playing : ItemStage
{
    explicit Playing(const QString &file)
        : keepPlaying(item, &HRVideoComponent::keepPlayingChanged)
        , ended(item, &HRVideoComponent::endedChanged)
        , finished(item, &HRVideoComponent::finished)
    {
        view.show();
        setFile(file);
    }

    bool isPlaying() const { return item->state() == HRVideoComponent::playingState; }
    /// Whether the clip has got beyond a picture.
    bool isBeyond(qint64 number) const { return item->position() > number; }

    SignalCounter keepPlaying;
    SignalCounter ended;
    SignalCounter finished;
};

using Ask = std::function<void(HRVideoComponent *)>;

} // namespace

Q_DECLARE_METATYPE(Ask)

void tst_HRVideoComponentPlaying::initTestCase()
{
    registerQmlTypes();
    m_clip = m_clips.write("clip.mp4", 0, 10);
    m_slow = m_clips.write("slow.mp4", 0, 50, QSize(64, 48), 10);
}

void tst_HRVideoComponentPlaying::play_showsAllAndPauses()
{
    ItemStage stage;
    stage.setFile(m_clips.write("pictures.mp4", 0, 10, QSize(64, 48), 20));
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
    QCOMPARE(stage.number(), 9);
    // A picture that the GUI thread is too late for is passed over.
    QVERIFY2(numbers.size() >= 6, qPrintable(QString::number(numbers.size())));
    QVERIFY(std::is_sorted(numbers.begin(), numbers.end()));
}

void tst_HRVideoComponentPlaying::play_restartsAtTheEnd()
{
    ItemStage stage;
    stage.setFile(m_clip);
    QTRY_VERIFY(stage.isDecoded());
    stage.item->play();
    QTRY_COMPARE(stage.item->position(), qint64(10));
    QTRY_COMPARE(stage.item->state(), HRVideoComponent::pausedState);
    stage.item->play();
    QVERIFY(stage.item->position() < 10);
    QTRY_COMPARE(stage.item->position(), qint64(10));
}

void tst_HRVideoComponentPlaying::state_mapsToTheController()
{
    ItemStage stage;
    stage.setFile(m_clips.write("long.mp4", 0, 50));
    QTRY_VERIFY(stage.isDecoded());
    stage.item->setState(HRVideoComponent::playingState);
    QCOMPARE(stage.item->state(), HRVideoComponent::playingState);
    stage.item->setState(HRVideoComponent::pausedState);
    QCOMPARE(stage.item->state(), HRVideoComponent::pausedState);
    stage.item->setState(HRVideoComponent::playingState);
    stage.item->setState(HRVideoComponent::resetState);
    QCOMPARE(stage.item->state(), HRVideoComponent::pausedState);
}

void tst_HRVideoComponentPlaying::state_holdsAnyNumber_thatQmlSets()
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

void tst_HRVideoComponentPlaying::resetState_leavesPlaybackAlone_whileScrubbing()
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

void tst_HRVideoComponentPlaying::rewindToStart_pausesAndAnnounces()
{
    ItemStage stage;
    stage.setFile(m_clips.write("rewind.mp4", 0, 50));
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

void tst_HRVideoComponentPlaying::progress_scrubs()
{
    ItemStage stage;
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

void tst_HRVideoComponentPlaying::keepPlaying_playsToTheEnd()
{
    Playing playing(m_clip);
    playing.item->setKeepPlaying(true);
    QVERIFY(playing.item->keepsPlaying());
    QCOMPARE(playing.keepPlaying.count(), 1);

    QTRY_COMPARE(playing.finished.count(), 1);
    QCOMPARE(playing.number(), 9);
    QCOMPARE(playing.item->position(), qint64(10));
    QVERIFY(!playing.isPlaying());
    QVERIFY(playing.item->isDecoded());
    QVERIFY(playing.item->hasEnded());
    QCOMPARE(playing.ended.count(), 1);
    QVERIFY(!playing.item->keepsPlaying());
    QCOMPARE(playing.keepPlaying.count(), 2);
}

void tst_HRVideoComponentPlaying::keepPlaying_startsOver_whenSetAtTheEnd()
{
    Playing playing(m_clip);
    playing.item->setKeepPlaying(true);
    QTRY_VERIFY(playing.item->hasEnded());

    playing.item->setKeepPlaying(true);
    QVERIFY(!playing.item->hasEnded());
    QVERIFY(playing.item->position() < 10);
    QTRY_COMPARE(playing.finished.count(), 2);
    QVERIFY(playing.item->hasEnded());
}

void tst_HRVideoComponentPlaying::keepPlaying_startsOver_whenItLoops()
{
    Playing playing(m_clip);
    SignalCounter loop(playing.item, &HRVideoComponent::loopChanged);
    playing.item->setLooping(true);
    playing.item->setLooping(true);
    QCOMPARE(loop.count(), 1);
    playing.item->setKeepPlaying(true);
    QTRY_VERIFY(playing.finished.count() >= 3);
    QVERIFY(playing.item->keepsPlaying());
    QCOMPARE(playing.ended.count(), 0);

    playing.item->setLooping(false);
    QTRY_VERIFY(playing.item->hasEnded());
    QCOMPARE(playing.number(), 9);
}

void tst_HRVideoComponentPlaying::keepPlaying_waitsForTheFirstPicture()
{
    Playing playing(m_clip);
    playing.item->setDecodingPaused(true);
    playing.setFile(m_slow);
    playing.item->setKeepPlaying(true);
    QTRY_VERIFY(playing.announced->count() >= 2); // it is open
    QVERIFY(!playing.isPlaying());
    QCOMPARE(playing.item->position(), qint64(0));

    playing.item->setDecodingPaused(false);
    QTRY_VERIFY(playing.isBeyond(2));
}

void tst_HRVideoComponentPlaying::keepPlaying_goesOn_withTheNextClip()
{
    Playing playing(m_slow);
    playing.item->setKeepPlaying(true);
    QTRY_VERIFY(playing.isBeyond(1));
    playing.setFile(m_clip);
    QVERIFY(!playing.isPlaying());
    QVERIFY(playing.item->keepsPlaying());
    QTRY_COMPARE(playing.finished.count(), 1);

    // The clip that is there already, too.
    playing.item->setKeepPlaying(true);
    playing.item->setSource("clip");
    QCOMPARE(playing.item->position(), qint64(0));
    QTRY_COMPARE(playing.finished.count(), 2);
}

void tst_HRVideoComponentPlaying::keepPlaying_rests_whileHidden()
{
    Playing playing(m_slow);
    playing.item->setKeepPlaying(true);
    QTRY_VERIFY(playing.isBeyond(1));
    playing.view.hide();
    QVERIFY(!playing.isPlaying());
    QVERIFY(playing.item->keepsPlaying());

    const qint64 position = playing.item->position();
    playing.view.show();
    QVERIFY(playing.isPlaying());
    QTRY_VERIFY(playing.isBeyond(position));

    playing.item->setParentItem(nullptr);
    QVERIFY(!playing.isPlaying());
    playing.item->setParentItem(playing.view.contentItem());
    QVERIFY(playing.isPlaying());
}

void tst_HRVideoComponentPlaying::keepPlaying_rests_whileScrubbing()
{
    Playing playing(m_slow);
    playing.item->setKeepPlaying(true);
    QTRY_VERIFY(playing.item->isDecoded());
    playing.item->setScrubbing(true);
    QVERIFY(!playing.isPlaying());
    for (int number : { 40, 20 }) {
        playing.item->setPosition(number);
        QTRY_COMPARE(playing.number(), number);
    }
    playing.item->setScrubbing(false);
    QVERIFY(playing.isPlaying());
    QTRY_VERIFY(playing.isBeyond(22));
}

void tst_HRVideoComponentPlaying::keepPlaying_ends_whenPaused_data()
{
    QTest::addColumn<Ask>("ask");
    QTest::newRow("not kept") << Ask([](HRVideoComponent *it) { it->setKeepPlaying(false); });
    QTest::newRow("pause") << Ask([](HRVideoComponent *it) { it->pause(); });
    QTest::newRow("state") << Ask(
        [](HRVideoComponent *it) { it->setState(HRVideoComponent::pausedState); });
    QTest::newRow("reset") << Ask(
        [](HRVideoComponent *it) { it->setState(HRVideoComponent::resetState); });
    QTest::newRow("rewound") << Ask([](HRVideoComponent *it) { it->rewindToStart(); });
    QTest::newRow("no source") << Ask([](HRVideoComponent *it) { it->setSource({}); });
}

void tst_HRVideoComponentPlaying::keepPlaying_ends_whenPaused()
{
    QFETCH(Ask, ask);
    Playing playing(m_slow);
    playing.item->setKeepPlaying(true);
    QTRY_VERIFY(playing.item->isDecoded());
    QTRY_VERIFY(playing.isPlaying());
    ask(playing.item);
    QVERIFY(!playing.isPlaying());
    QVERIFY(!playing.item->keepsPlaying());
    QCOMPARE(playing.finished.count(), 0);
}

void tst_HRVideoComponentPlaying::finished_comes_whenPlayedByHand()
{
    Playing playing(m_clip);
    QTRY_VERIFY(playing.item->isDecoded());
    playing.item->play();
    QTRY_COMPARE(playing.finished.count(), 1);
    QVERIFY(playing.item->hasEnded());
    QCOMPARE(playing.number(), 9);
    playing.item->play();
    QVERIFY(!playing.item->hasEnded());
    QTRY_COMPARE(playing.finished.count(), 2);
    QCOMPARE(playing.keepPlaying.count(), 0);
}

void tst_HRVideoComponentPlaying::ended_isOver_whenTheClipIsLeft_data()
{
    QTest::addColumn<Ask>("ask");
    QTest::newRow("position") << Ask([](HRVideoComponent *it) { it->setPosition(4); });
    QTest::newRow("progress") << Ask([](HRVideoComponent *it) { it->setProgress(1.0); });
    QTest::newRow("rewound") << Ask([](HRVideoComponent *it) { it->rewindToStart(); });
    QTest::newRow("played") << Ask([](HRVideoComponent *it) { it->play(); });
    QTest::newRow("the same source") << Ask([](HRVideoComponent *it) { it->setSource("clip"); });
    QTest::newRow("no source") << Ask([](HRVideoComponent *it) { it->setSource({}); });
}

void tst_HRVideoComponentPlaying::ended_isOver_whenTheClipIsLeft()
{
    QFETCH(Ask, ask);
    Playing playing(m_clip);
    playing.item->setKeepPlaying(true);
    QTRY_VERIFY(playing.item->hasEnded());
    ask(playing.item);
    QVERIFY(!playing.item->hasEnded());
    QCOMPARE(playing.ended.count(), 2);
    QVERIFY(playing.item->isDecoded());
}

void tst_HRVideoComponentPlaying::decoded_isToldOfEachClip()
{
    Playing playing(m_clip);
    SignalCounter decoded(playing.item, &HRVideoComponent::decodedChanged);
    QVERIFY(!playing.item->isDecoded());
    QTRY_VERIFY(playing.item->isDecoded());
    QCOMPARE(decoded.count(), 1);
    playing.setFile(m_slow);
    QVERIFY(!playing.item->isDecoded());
    QCOMPARE(decoded.count(), 2);
    QTRY_COMPARE(decoded.count(), 3);
    QVERIFY(playing.item->isDecoded());
    // Of clips that are set one after the other, the last counts; each but once, since one that is
    // open would not be opened again.
    const QString third = m_clips.write("third.mp4", 0, 7);
    const QString last = m_clips.write("last.mp4", 0, 5);
    for (const QString &file : { m_clip, third, last })
        playing.setFile(file);
    QVERIFY(!playing.item->isDecoded());
    QTRY_VERIFY(playing.item->isDecoded());
    QCOMPARE(decoded.count(), 5);
    playing.item->setPosition(49);
    QCOMPARE(playing.item->position(), qint64(4));
}

void tst_HRVideoComponentPlaying::time_isToldOfEachPicture()
{
    Playing playing(m_slow);
    SignalCounter time(playing.item, &HRVideoComponent::timeChanged);
    QTRY_VERIFY(playing.item->isDecoded());
    QTRY_COMPARE(playing.number(), 0);
    QCOMPARE(time.count(), 0);
    playing.item->setPosition(10);
    QTRY_COMPARE(time.count(), 1);
    QCOMPARE(playing.item->pictureTime(), 1.0);
    QCOMPARE(playing.item->property("time").toDouble(), 1.0);
    playing.setFile(m_clip); // no picture
    QCOMPARE(time.count(), 2);
    QCOMPARE(playing.item->pictureTime(), 0.0);
}

void tst_HRVideoComponentPlaying::documentedExample_plays()
{
    QFile file(DOCS_DIR "/video.md");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    const int begin = text.indexOf("```qml\n") + 7;
    ItemStage stage(m_clip);
    stage.view.show();
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

QTEST_MAIN(tst_HRVideoComponentPlaying)
#include "tst_HRVideoComponentPlaying.moc"
