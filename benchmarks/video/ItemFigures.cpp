// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "Clips.h"
#include "Figures.h"
#include "OneThread.h"
#include "Stage.h"
#include "video/HRClip_p.h"
#include "video/HRCompactFrameCache_p.h"

#include <QCoreApplication>
#include <QPainter>
#include <QTimer>

#include <random>

using namespace Hintreels;

namespace {

constexpr double refresh = 1.0 / 60.0; // s, of a screen

double secondsToFirstPicture(const QString &path)
{
    Stage stage(path);
    stage.item->startWatch();
    return secondsOf([&stage] {
        stage.setSource();
        stage.runUntil([&stage] { return !stage.item->paintings.isEmpty(); });
    });
}

Figure firstPicture(const Clip &clip)
{
    const Least least = leastOf(
        10, [&] { return secondsOf([&] { OneThread(clip.path).decode(1); }); },
        [&] { return secondsToFirstPicture(clip.path); });
    return { "first picture painted, " + clip.name, Figure::ratio, "ms", least.baseline * 1e3,
        least.ours * 1e3, 1.2 + refresh / least.baseline };
}

/// The GUI thread's work for a picture, beside that of reading and drawing it.
Figure paintedPicture(const Clip &clip)
{
    HRCompactFrameCache cache("x");
    HRClip reader([] { return false; });
    if (!reader.open(clip.path).isNull())
        qFatal("cannot open %s", qPrintable(clip.path));
    for (int i = 0; i < clipPictures; ++i)
        cache.addFrame(reader.readPicture());
    Stage stage(clip.path);
    stage.load();
    QImage screen(clip.size, QImage::Format_RGB32);
    QPainter painter(&screen);
    HRVideoFrame shown;
    QVector<double> baseline;
    QVector<double> ours;
    for (int i = 1; i < clipPictures; ++i) {
        baseline.append(secondsOf([&] {
            shown = cache.frame(size_t(i));
            painter.drawImage(QPoint(), shown);
        }));
        stage.item->setPosition(i);
        ours.append(secondsOf([&] {
            stage.item->frameReady();
            stage.item->HRVideoComponent::paint(&painter);
        }));
        QCoreApplication::processEvents();
    }
    return { "GUI thread, for a painted picture, " + clip.name, Figure::ratio, "ms",
        quantile(baseline, 0.5) * 1e3, quantile(ours, 0.5) * 1e3, 1.3 };
}

Figure destruction(const Clip &clip)
{
    std::mt19937 random(2);
    double longest = 0.0;
    for (int i = 0; i < 200; ++i) {
        Stage stage(clip.path);
        stage.setSource();
        bool over = false;
        QTimer::singleShot(int(random() % 60), [&over] { over = true; });
        stage.runUntil([&over] { return over; });
        longest = qMax(longest, secondsOf([&stage] { delete stage.item; }));
    }
    return { "longest of 200 destructions, " + clip.name, Figure::atMost, "ms", 0.0, longest * 1e3,
        250.0 };
}

Figures smoothness(const Clip &clip)
{
    Stage stage(clip.path);
    stage.load();
    bool over = false;
    stage.item->startWatch();
    QTimer::singleShot(10000, Qt::PreciseTimer, [&over] { over = true; });
    stage.item->update();
    stage.item->play();
    stage.runUntil([&over] { return over; });
    double longest = 0.0;
    const QVector<WatchedItem::Painting> &paintings = stage.item->paintings;
    for (int i = 2; i < paintings.size(); ++i)
        longest = qMax(longest, paintings[i].time - paintings[i - 1].time);
    return { { "pictures shown in 10 s, " + clip.name, Figure::atLeast, "", 0.0,
                 double(paintings.size()), 299.0 },
        { "longest time for one of them, " + clip.name, Figure::atMost, "ms", 0.0, longest * 1e3,
            2e3 / clipRate } };
}

} // namespace

Figures itemFigures(const Clip &clip)
{
    return Figures{ firstPicture(clip), paintedPicture(clip), destruction(clip) }
    + smoothness(clip);
}
