// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRPlayhead_p.h"

#include <QtTest>

#include <limits>

using namespace Hintreels;

class tst_HRPlayhead : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void goTo_endsAtTheLastPicture_data();
    void goTo_endsAtTheLastPicture();
    void play_startsOver_atTheEnd_data();
    void play_startsOver_atTheEnd();
    void nextStep_followsStateAndPictures_data();
    void nextStep_followsStateAndPictures();
    void nextStep_pausesAtTheLastPicture_onlyOnce();
    void advance_movesOn_whilePlaying_data();
    void advance_movesOn_whilePlaying();
    void advance_tellsWhatWasFetched();
    void advance_givesEachPictureItsTime_whereTheFileSaysIt();
    void hasMoved_untilThePictureGoesOut();
    void endDecoding_pauses_data();
    void endDecoding_pauses();
};

namespace {

constexpr quint64 wrapped = std::numeric_limits<quint64>::max();
constexpr auto paused = HRVideoController::controllerPaused;
constexpr auto playing = HRVideoController::controllerPlaying;

} // namespace

void tst_HRPlayhead::goTo_endsAtTheLastPicture_data()
{
    QTest::addColumn<quint64>("index");
    QTest::addColumn<quint64>("count");
    QTest::addColumn<quint64>("position");
    QTest::newRow("first") << quint64(0) << quint64(10) << quint64(0);
    QTest::newRow("last") << quint64(9) << quint64(10) << quint64(9);
    QTest::newRow("behind the last") << quint64(10) << quint64(10) << quint64(9);
    QTest::newRow("far behind") << wrapped << quint64(10) << quint64(9);
    QTest::newRow("no pictures") << quint64(0) << quint64(0) << wrapped;
}

void tst_HRPlayhead::goTo_endsAtTheLastPicture()
{
    QFETCH(quint64, index);
    QFETCH(quint64, count);
    HRPlayhead playhead;
    playhead.setNeedsPicture(false);
    playhead.goTo(index, count);
    QTEST(playhead.position(), "position");
    QCOMPARE(playhead.state(), paused);
    QVERIFY(playhead.hasMoved());
    QCOMPARE(playhead.nextStep(count), count > 0 ? HRPlayhead::showStill : HRPlayhead::rest);
}

void tst_HRPlayhead::play_startsOver_atTheEnd_data()
{
    QTest::addColumn<quint64>("position");
    QTest::addColumn<quint64>("count");
    QTest::addColumn<bool>("awaits");
    QTest::addColumn<bool>("startsOver");
    QTest::addColumn<quint64>("after");
    QTest::newRow("amid") << quint64(4) << quint64(10) << false << false << quint64(4);
    QTest::newRow("last picture") << quint64(9) << quint64(10) << false << false << quint64(9);
    QTest::newRow("end") << quint64(10) << quint64(10) << false << true << quint64(0);
    QTest::newRow("behind the end") << quint64(12) << quint64(10) << false << true << quint64(0);
    QTest::newRow("no pictures") << quint64(0) << quint64(0) << false << true << wrapped;
    QTest::newRow("caught up") << quint64(10) << quint64(10) << true << false << quint64(10);
    QTest::newRow("awaiting the first") << quint64(0) << quint64(0) << true << false << quint64(0);
    QTest::newRow("awaiting, behind the end")
        << quint64(12) << quint64(10) << true << true << quint64(0);
}

void tst_HRPlayhead::play_startsOver_atTheEnd()
{
    QFETCH(quint64, position);
    QFETCH(quint64, count);
    QFETCH(bool, awaits);
    HRPlayhead playhead;
    playhead.setPosition(position);
    playhead.setAwaitsDecoder(awaits);
    QTEST(playhead.play(count), "startsOver");
    QTEST(playhead.position(), "after");
    QCOMPARE(playhead.state(), playing);
    QVERIFY(!playhead.hasMoved()); // a picture that is due still waits for its time
}

void tst_HRPlayhead::nextStep_followsStateAndPictures_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("needsPicture");
    QTest::addColumn<bool>("awaits");
    QTest::addColumn<quint64>("position");
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("after"); // the state
    const auto row = [](const char *name, int state, bool needs, bool awaits, quint64 position,
                         int step, int after) {
        QTest::newRow(name) << state << needs << awaits << position << step << after;
    };
    // Of five pictures.
    row("plays", playing, false, false, 4, HRPlayhead::present, playing);
    row("plays, and is asked", playing, true, false, 4, HRPlayhead::present, playing);
    row("at the end", playing, false, false, 5, HRPlayhead::announceEnd, paused);
    row("at the end, and is asked", playing, true, false, 5, HRPlayhead::announceEnd, paused);
    row("behind the end", playing, false, false, 6, HRPlayhead::rest, playing);
    row("caught up", playing, false, true, 5, HRPlayhead::rest, playing);
    row("plays, would await", playing, false, true, 4, HRPlayhead::present, playing);
    row("paused", paused, false, false, 4, HRPlayhead::rest, paused);
    row("paused, and is asked", paused, true, false, 4, HRPlayhead::showStill, paused);
    row("paused at the end, and is asked", paused, true, false, 5, HRPlayhead::rest, paused);
    row("paused, would await", paused, true, true, 4, HRPlayhead::showStill, paused);
}

void tst_HRPlayhead::nextStep_followsStateAndPictures()
{
    QFETCH(int, state);
    QFETCH(bool, needsPicture);
    QFETCH(bool, awaits);
    QFETCH(quint64, position);
    HRPlayhead playhead;
    playhead.setPosition(position);
    playhead.setState(HRVideoController::State(state));
    playhead.setNeedsPicture(needsPicture);
    playhead.setAwaitsDecoder(awaits);
    QTEST(int(playhead.nextStep(5)), "step");
    QTEST(int(playhead.state()), "after");
}

void tst_HRPlayhead::nextStep_pausesAtTheLastPicture_onlyOnce()
{
    HRPlayhead playhead;
    playhead.play(1);
    QCOMPARE(playhead.nextStep(1), HRPlayhead::present);
    QVERIFY(playhead.advance(1).moves);
    QCOMPARE(playhead.nextStep(1), HRPlayhead::announceEnd);
    QCOMPARE(playhead.nextStep(1), HRPlayhead::rest);
}

void tst_HRPlayhead::advance_movesOn_whilePlaying_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<quint64>("position");
    QTest::addColumn<bool>("fetched");
    QTest::addColumn<bool>("displays");
    QTest::addColumn<bool>("moves");
    QTest::addColumn<bool>("paces");
    // Of five pictures.
    QTest::newRow("amid") << int(playing) << quint64(3) << false << true << true << true;
    QTest::newRow("amid, fetched") << int(playing) << quint64(3) << true << true << true << true;
    QTest::newRow("last") << int(playing) << quint64(4) << true << true << true << true;
    QTest::newRow("gone meanwhile")
        << int(playing) << quint64(5) << false << false << false << true;
    QTest::newRow("gone, fetched") << int(playing) << quint64(5) << true << false << false << false;
    QTest::newRow("paused meanwhile")
        << int(paused) << quint64(3) << false << true << false << false;
}

void tst_HRPlayhead::advance_movesOn_whilePlaying()
{
    QFETCH(int, state);
    QFETCH(quint64, position);
    QFETCH(bool, fetched);
    QFETCH(bool, moves);
    HRPlayhead playhead;
    playhead.setPosition(position);
    playhead.setState(HRVideoController::State(state));
    if (fetched)
        playhead.fetch();
    const HRPlayhead::Advance advance = playhead.advance(5);
    QTEST(advance.displays, "displays");
    QTEST(advance.moves, "moves");
    QTEST(advance.paces, "paces");
    QCOMPARE(advance.position, position);
    QCOMPARE(playhead.position(), moves ? position + 1 : position);
}

void tst_HRPlayhead::advance_givesEachPictureItsTime_whereTheFileSaysIt()
{
    HRPlayhead playhead;
    playhead.play(2);
    const auto sees = [&playhead](quint64 count, quint64 picture, bool moves, bool paces) {
        const HRPlayhead::Advance advance = playhead.advance(count, true);
        playhead.fetch();
        return advance.displays && advance.seen == picture && advance.moves == moves
            && advance.paces == paces;
    };
    QVERIFY(sees(2, 0, false, true));
    QVERIFY(sees(2, 1, true, true));
    QVERIFY(sees(2, 2, true, false)); // not decoded yet
    QVERIFY(sees(4, 2, false, true));
    QVERIFY(sees(4, 3, true, true));
    playhead.goTo(1, 4);
    QVERIFY(sees(4, 1, false, true));
    QVERIFY(sees(4, 2, true, true));
    playhead.setState(paused);
    playhead.play(4);
    QVERIFY(sees(4, 2, false, true));
}

void tst_HRPlayhead::advance_tellsWhatWasFetched()
{
    HRPlayhead playhead;
    playhead.goTo(3, 10);
    QCOMPARE(playhead.advance(10).displayed, quint64(2)); // one step behind
    playhead.fetch();
    QCOMPARE(playhead.advance(10).displayed, quint64(3));
    playhead.play(10);
    playhead.advance(10);
    QCOMPARE(playhead.advance(10).displayed, quint64(3)); // nobody has fetched since
    playhead.goTo(0, 10);
    QCOMPARE(playhead.advance(10).displayed, wrapped);
}

void tst_HRPlayhead::hasMoved_untilThePictureGoesOut()
{
    HRPlayhead playhead;
    QVERIFY(!playhead.hasMoved());
    playhead.goTo(3, 10);
    playhead.play(10);
    playhead.nextStep(10);
    QVERIFY(playhead.hasMoved());
    playhead.advance(10);
    QVERIFY(!playhead.hasMoved());
}

void tst_HRPlayhead::endDecoding_pauses_data()
{
    QTest::addColumn<bool>("scrubbing");
    QTest::addColumn<bool>("awaits");
    QTest::addColumn<bool>("pauses");
    QTest::newRow("playing") << false << false << true;
    QTest::newRow("scrubbing") << true << false << false;
    QTest::newRow("awaiting the decoder") << false << true << false;
}

void tst_HRPlayhead::endDecoding_pauses()
{
    QFETCH(bool, scrubbing);
    QFETCH(bool, awaits);
    QFETCH(bool, pauses);
    HRPlayhead playhead;
    playhead.play(10);
    playhead.setScrubbing(scrubbing);
    playhead.setAwaitsDecoder(awaits);
    QCOMPARE(playhead.endDecoding(), pauses);
    QCOMPARE(playhead.state(), pauses ? paused : playing);
}

QTEST_APPLESS_MAIN(tst_HRPlayhead)
#include "tst_HRPlayhead.moc"
