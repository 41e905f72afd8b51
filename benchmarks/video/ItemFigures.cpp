// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "Clips.h"
#include "FigureRuns.h"
#include "Measuring.h"
#include "OneThread.h"
#include "Stage.h"
#include "VideoFigures.h"
#include "video/HRClip_p.h"
#include "video/HRCompactFrameCache_p.h"

#include <QCoreApplication>
#include <QPainter>
#include <QTimer>

#include <algorithm>
#include <memory>
#include <random>
#include <vector>

using namespace Hintreels;

namespace {

constexpr double refresh = 1.0 / 60.0; // s, of a screen

double secondsToFirstPicture(const QString &path)
{
    Stage stage(path);
    stage.item->startWatch();
    return seconds([&stage] {
        stage.setSource();
        stage.runUntil([&stage] { return !stage.item->paintings.isEmpty(); });
    });
}

/// A clip that is shown, beside its pictures without an item.
struct ShownClip
{
    explicit ShownClip(const Clip &clip)
        : stage(clip.path)
        , screen(clip.size, QImage::Format_RGB32)
        , painter(&screen)
    {
        HRClip reader([] { return false; });
        if (!reader.open(clip.path).isNull())
            cannotMeasure("cannot open " + clip.path);
        for (int i = 0; i < clipPictures; ++i)
            cache.addFrame(reader.readPicture());
        stage.load();
    }

    double readAndDraw(int picture)
    {
        return seconds([&] {
            shown = cache.frame(size_t(picture));
            painter.drawImage(QPoint(), shown);
        });
    }

    double fetchAndPaint(int picture)
    {
        stage.item->setPosition(picture);
        const double taken = seconds([&] {
            stage.item->frameReady();
            stage.item->HRVideoComponent::paint(&painter);
        });
        QCoreApplication::processEvents();
        return taken;
    }

    HRCompactFrameCache cache{ "x" };
    Stage stage;
    QImage screen;
    QPainter painter;
    HRVideoFrame shown;
};

std::unique_ptr<ShownClip> &shownClip()
{
    static std::unique_ptr<ShownClip> shown;
    return shown;
}

ShownClip &shownClipOrNew()
{
    if (!shownClip())
        shownClip() = std::make_unique<ShownClip>(clipOf(SmallClip, true));
    return *shownClip();
}

/// The median over the pictures of a clip.
Measure forEachPicture(double (ShownClip::*work)(int))
{
    return [work] {
        std::vector<double> times;
        for (int i = 1; i < clipPictures; ++i)
            times.push_back((shownClipOrNew().*work)(i));
        return quantile(times, 0.5);
    };
}

double longestDestruction(const Clip &clip)
{
    constexpr int Items = 200;
    constexpr unsigned MostLife = 60; // ms
    std::mt19937 random(2);
    double longest = 0.0;
    for (int i = 0; i < Items; ++i) {
        Stage stage(clip.path);
        stage.setSource();
        bool over = false;
        QTimer::singleShot(int(random() % MostLife), [&over] { over = true; });
        stage.runUntil([&over] { return over; });
        longest = std::max(longest, seconds([&stage] { delete stage.item; }));
    }
    return longest;
}

} // namespace

void addItemFigures(FigureRuns &runs)
{
    const auto clip = [] { return clipOf(SmallClip, true); };
    runs.add({ "first picture painted, less a refresh of the screen", 0, Bar::atMost(1.2),
        [=] { return seconds([&] { OneThread(clip().path).decode(1); }); },
        [=] { return std::max(0.0, secondsToFirstPicture(clip().path) - refresh); } });
    runs.add({ "GUI thread, for a painted picture", 0, Bar::atMost(1.3),
        forEachPicture(&ShownClip::readAndDraw), forEachPicture(&ShownClip::fetchAndPaint), 3 });
    runs.add({ "longest of 200 destructions", 0, Bar::atMost(0.25), nullptr,
        [=] { return longestDestruction(clip()); }, 1 });
}

void dropShownClips()
{
    shownClip().reset();
}
