// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRClipState_p.h"

#include <QtTest>

using namespace Hintreels;

using Event = HRClipEvent;
using Events = QVector<HRClipEvent>;

Q_DECLARE_METATYPE(Hintreels::HRClipEvent)
Q_DECLARE_METATYPE(Events)

class tst_HRClipState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void state_followsEvents_data();
    void state_followsEvents();
    void state_isTheSame_whenAnEventComesAgain_data();
    void state_isTheSame_whenAnEventComesAgain();
    void finished_isCountedOnce_aRound();
};

namespace {

/// What is said of a clip, as letters: Wanted, Playing, awaiting the decoder (A), Decoded, Ended.
QString letters(const HRClipState &clip)
{
    QString text;
    const auto add = [&text](bool is, char letter) { text += QLatin1Char(is ? letter : '.'); };
    add(clip.isWanted(), 'W');
    add(clip.plays(), 'P');
    add(clip.awaitsDecoder(), 'A');
    add(clip.isDecoded(), 'D');
    add(clip.isEnded(), 'E');
    return text;
}

const Events ready{ Event::seen, Event::opened, Event::pictureShown };
const Events playing = ready + Events{ Event::wanted };
const Events ended = playing + Events{ Event::decoded, Event::endReached };

} // namespace

void tst_HRClipState::state_followsEvents_data()
{
    QTest::addColumn<bool>("looping");
    QTest::addColumn<Events>("events");
    QTest::addColumn<QString>("letters");
    QTest::addColumn<int>("action"); // that the last event asks for

    const auto once = [](const char *name, const Events &events, const char *letters, int action) {
        QTest::newRow(name) << false << events << QString(letters) << action;
    };
    const auto looped
        = [](const char *name, const Events &events, const char *letters, int action) {
              QTest::newRow(name) << true << events << QString(letters) << action;
          };
    constexpr int nothing = HRClipState::nothing;
    constexpr int play = HRClipState::play;
    constexpr int pause = HRClipState::pause;

    once("new", {}, ".....", nothing);
    once("ready", ready, ".....", nothing);
    once("wanted", playing, "WPA..", play);
    once("wanted before it is seen", { Event::wanted, Event::opened, Event::pictureShown }, "W.A..",
        nothing);
    once("seen at last", { Event::wanted, Event::opened, Event::pictureShown, Event::seen },
        "WPA..", play);
    once(
        "wanted before a picture", { Event::seen, Event::opened, Event::wanted }, "W.A..", nothing);
    once("its first picture", { Event::seen, Event::opened, Event::wanted, Event::pictureShown },
        "WPA..", play);
    once("another picture", playing + Events{ Event::pictureShown }, "WPA..", nothing);
    once("wanted no more", playing + Events{ Event::unwanted }, ".....", pause);

    once("caught up with the decoder", playing + Events{ Event::endReached }, "WPA..", nothing);
    once("decoded while it plays", playing + Events{ Event::decoded }, "WP.D.", nothing);
    once("decoded where it has caught up", playing + Events{ Event::endReached, Event::decoded },
        "WP.D.", nothing);
    once("ended", ended, "...DE", nothing);
    once("decoded, unwanted", ready + Events{ Event::decoded }, "...D.", nothing);
    once("played by hand to its end", ready + Events{ Event::decoded, Event::endReached }, "...DE",
        nothing);
    once("played by hand, caught up", ready + Events{ Event::endReached }, ".....", nothing);

    once("wanted again at its end", ended + Events{ Event::wanted }, "WP.D.", play);
    once("wanted again, hidden", ended + Events{ Event::hidden, Event::wanted }, "W..D.", nothing);
    once("wanted again, seen again", ended + Events{ Event::hidden, Event::wanted, Event::seen },
        "WP.D.", play);
    once("wanted again for a moment, hidden",
        ended + Events{ Event::hidden, Event::wanted, Event::unwanted }, "...DE", nothing);
    once("ended again", ended + Events{ Event::wanted, Event::endReached }, "...DE", nothing);
    once("moved from its end", ended + Events{ Event::moved }, "...D.", nothing);
    once("moved from its end and wanted", ended + Events{ Event::moved, Event::wanted }, "WP.D.",
        play);

    once("hidden", playing + Events{ Event::hidden }, "W.A..", pause);
    once("hidden and seen again", playing + Events{ Event::hidden, Event::seen }, "WPA..", play);
    once("scrubbed", playing + Events{ Event::scrubbed }, "W.A..", pause);
    once("moved while scrubbed", playing + Events{ Event::scrubbed, Event::moved }, "W.A..",
        nothing);
    once("scrubbed and released", playing + Events{ Event::scrubbed, Event::released }, "WPA..",
        play);
    once("scrubbed after its end", ended + Events{ Event::scrubbed, Event::moved }, "...D.",
        nothing);
    once("released after its end", ended + Events{ Event::scrubbed, Event::moved, Event::released },
        "...D.", nothing);
    once("scrubbed and hidden, released",
        playing + Events{ Event::scrubbed, Event::hidden, Event::released }, "W.A..", nothing);
    once("scrubbed, unwanted, released",
        playing + Events{ Event::scrubbed, Event::unwanted, Event::released }, ".....", nothing);

    once("another clip", playing + Events{ Event::decoded, Event::opened }, "W.A..", pause);
    once("another clip's picture",
        playing + Events{ Event::decoded, Event::opened, Event::pictureShown }, "WPA..", play);
    once("another clip after the end", ended + Events{ Event::opened }, ".....", nothing);
    once("the same clip", playing + Events{ Event::decoded, Event::rewound }, "W..D.", pause);
    once("the same clip's picture",
        playing + Events{ Event::decoded, Event::rewound, Event::pictureShown }, "WP.D.", play);
    once("the same clip after the end", ended + Events{ Event::rewound }, "...D.", nothing);

    looped("replayed", ended, "WP.D.", play);
    looped("replayed twice", ended + Events{ Event::endReached }, "WP.D.", play);
    looped("caught up, looping", playing + Events{ Event::endReached }, "WPA..", nothing);
    looped("unwanted while looping", ended + Events{ Event::unwanted }, "...D.", pause);
    looped("at its end by hand, looping", ready + Events{ Event::decoded, Event::endReached },
        "...DE", nothing);
    looped("hidden at its end, looping",
        playing + Events{ Event::decoded, Event::hidden, Event::endReached }, "W..D.", nothing);
    looped("hidden at its end, looping, seen again",
        playing + Events{ Event::decoded, Event::hidden, Event::endReached, Event::seen }, "WP.D.",
        play);
}

void tst_HRClipState::state_followsEvents()
{
    QFETCH(bool, looping);
    QFETCH(Events, events);
    HRClipState clip;
    clip.setLooping(looping);
    HRClipState::Action action = HRClipState::nothing;
    for (Event event : qAsConst(events))
        action = clip.apply(event);
    QTEST(letters(clip), "letters");
    QTEST(int(action), "action");
}

void tst_HRClipState::state_isTheSame_whenAnEventComesAgain_data()
{
    QTest::addColumn<Event>("event");
    QTest::newRow("picture") << Event::pictureShown;
    QTest::newRow("decoded") << Event::decoded;
    QTest::newRow("moved") << Event::moved;
    QTest::newRow("wanted") << Event::wanted;
    QTest::newRow("unwanted") << Event::unwanted;
    QTest::newRow("scrubbed") << Event::scrubbed;
    QTest::newRow("released") << Event::released;
    QTest::newRow("seen") << Event::seen;
    QTest::newRow("hidden") << Event::hidden;
    QTest::newRow("opened") << Event::opened;
    QTest::newRow("rewound") << Event::rewound;
}

void tst_HRClipState::state_isTheSame_whenAnEventComesAgain()
{
    QFETCH(Event, event);
    for (const Events &start : { Events(), ready, playing, ended }) {
        HRClipState clip;
        for (Event before : start)
            clip.apply(before);
        clip.apply(event);
        const QString once = letters(clip);
        QCOMPARE(clip.apply(event), HRClipState::nothing);
        QCOMPARE(letters(clip), once);
    }
}

void tst_HRClipState::finished_isCountedOnce_aRound()
{
    HRClipState clip;
    clip.setLooping(true);
    for (Event event : playing)
        clip.apply(event);
    clip.apply(Event::endReached); // of what is decoded
    QCOMPARE(clip.rounds(), 0);
    clip.apply(Event::decoded);
    QCOMPARE(clip.rounds(), 0);
    clip.apply(Event::endReached);
    clip.apply(Event::endReached);
    QCOMPARE(clip.rounds(), 2);

    clip.setLooping(false);
    clip.apply(Event::endReached);
    clip.apply(Event::endReached); // where it rests
    QCOMPARE(clip.rounds(), 3);
    clip.apply(Event::moved);
    clip.apply(Event::endReached);
    QCOMPARE(clip.rounds(), 4);
}

QTEST_APPLESS_MAIN(tst_HRClipState)
#include "tst_HRClipState.moc"
