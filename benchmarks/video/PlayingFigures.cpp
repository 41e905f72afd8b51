// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "Clips.h"
#include "FigureRuns.h"
#include "Stage.h"
#include "VideoFigures.h"

#include <QTimer>

#include <algorithm>

namespace {

using Paintings = QVector<WatchedItem::Painting>;

/// Plays a loaded clip from its first picture on, until @p done says so.
Paintings playedUntil(Stage &stage, const std::function<bool()> &done)
{
    stage.item->startWatch();
    stage.item->update();
    stage.item->play();
    stage.runUntil(done);
    return stage.item->paintings;
}

/// What is seen of a clip of 10 s within 10 s.
const Paintings &tenSeconds()
{
    static const Paintings paintings = [] {
        Stage stage(clipOf(SmallClip, true).path);
        stage.load();
        bool over = false;
        QTimer::singleShot(10000, Qt::PreciseTimer, [&over] { over = true; });
        return playedUntil(stage, [&over] { return over; });
    }();
    return paintings;
}

double longestPicture(const Paintings &paintings)
{
    double longest = 0.0;
    for (int i = 2; i < paintings.size(); ++i)
        longest = std::max(longest, paintings[i].time - paintings[i - 1].time);
    return longest;
}

/// Seconds of playing for a second of the clip: the slope of the line through all paintings, so
/// that a late one at either end counts no more than one in between.
double pace(const Paintings &paintings)
{
    double clip = 0.0;
    double played = 0.0;
    for (const WatchedItem::Painting &painting : paintings) {
        clip += painting.picture / paintings.size();
        played += painting.time / paintings.size();
    }
    double covariance = 0.0;
    double variance = 0.0;
    for (const WatchedItem::Painting &painting : paintings) {
        covariance += (painting.picture - clip) * (painting.time - played);
        variance += (painting.picture - clip) * (painting.picture - clip);
    }
    return covariance / variance;
}

/// The first picture stands longer, since it was there before.
double paceAt(int rate, int seconds)
{
    Stage stage(writeClipAt(rate, seconds));
    stage.load();
    const Paintings paintings = playedUntil(
        stage, [&] { return stage.item->state() == Hintreels::HRVideoComponent::pausedState; });
    return pace(paintings.mid(2));
}

void addPace(FigureRuns &runs, const char *name, int rate, int seconds = 1)
{
    runs.add({ std::string("played length / clip's length, ") + name + " pictures a second", 0,
        { 0.9995, 1.0005 }, nullptr, [=] { return paceAt(rate, seconds); }, 1, Unit::none });
}

} // namespace

void addPlayingFigures(FigureRuns &runs)
{
    runs.add({ "pictures shown in 10 s", 0, Bar::atLeast(10.0 * clipRate - 1), nullptr,
        [] { return double(tenSeconds().size()); }, 1, Unit::none });
    runs.add({ "longest time for one of them", 0, Bar::atMost(2.0 / clipRate), nullptr,
        [] { return longestPicture(tenSeconds()); }, 1 });
    addPace(runs, "23.976", 24000, 1001);
    addPace(runs, "24", 24);
    addPace(runs, "25", 25);
    addPace(runs, "29.97", 30000, 1001);
    addPace(runs, "30", 30);
    addPace(runs, "50", 50);
    addPace(runs, "60", 60);
}
