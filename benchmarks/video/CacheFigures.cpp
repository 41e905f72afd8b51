// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "Clips.h"
#include "FigureRuns.h"
#include "Measuring.h"
#include "OneThread.h"
#include "VideoFigures.h"
#include "video/HRClipFlashes_p.h"
#include "video/HRClip_p.h"
#include "video/HRCompactFrameCache_p.h"
#include "video/HRVideoSourceFFMPEG.h"

#include <QSemaphore>
#include <QUrl>

#include <malloc.h>

#include <algorithm>
#include <memory>
#include <numeric>
#include <random>
#include <vector>

using namespace Hintreels;

namespace {

// From a resting thread asked for the clip to the end of its stream.
double effortToDecode(const QString &path)
{
    HRVideoSourceFFMPEG source;
    QSemaphore ended;
    QObject::connect(
        &source, &HRVideoSource::streamEnded, &source, [&ended] { ended.release(); },
        Qt::DirectConnection);
    source.start();
    return processorSeconds([&] {
        source.setSource(QUrl::fromLocalFile(path));
        ended.acquire();
    });
}

double bytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

void fill(HRCompactFrameCache *cache, const QString &path)
{
    HRClip clip([] { return false; });
    if (!clip.open(path).isNull())
        cannotMeasure("cannot open " + path);
    for (HRVideoFrame picture = clip.readPicture(); !picture.isNull(); picture = clip.readPicture())
        cache->addFrame(picture);
}

/// Of a clip, each picture right after it was converted, as the source does.
double effortToFindFlashes(const QString &path)
{
    HRClip clip([] { return false; });
    if (!clip.open(path).isNull())
        cannotMeasure("cannot open " + path);
    HRClipFlashes flashes;
    HRCompactFrameCache cache("x");
    double seconds = 0.0;
    for (HRVideoFrame picture = clip.readPicture(); !picture.isNull();
         picture = clip.readPicture()) {
        seconds
            += processorSeconds([&] { flashes.add(picture, clip.pictureTime(), 1.0 / clipRate); });
        cache.addFrame(picture);
    }
    return seconds;
}

std::string named(const char *what, const QSize &size, bool isScreen)
{
    return std::string(what) + (isScreen ? ", screen " : ", motion ") + std::to_string(size.width())
        + "x" + std::to_string(size.height());
}

void addDecoding(FigureRuns &runs, const QSize &size, bool isScreen)
{
    runs.add({ named("decode whole", size, isScreen), 0, Bar::atMost(isScreen ? 1.4 : 1.6),
        [=] {
            const QString path = clipOf(size, isScreen).path;
            return processorSeconds([&] { OneThread(path).decode(clipPictures); });
        },
        [=] { return effortToDecode(clipOf(size, isScreen).path); }, 5 });
    runs.add({ named("look for flashes", size, isScreen), 0, Bar::atMost(0.1),
        [=] {
            const QString path = clipOf(size, isScreen).path;
            return processorSeconds([&] { OneThread(path).decode(clipPictures); });
        },
        [=] { return effortToFindFlashes(clipOf(size, isScreen).path); }, 5 });
    runs.add({ named("memory", size, isScreen), 0, Bar::atMost(isScreen ? 0.10 : 1.02),
        [=] { return 4.0 * size.width() * size.height() * clipPictures; },
        [=] {
            const QString path = clipOf(size, isScreen).path;
            const double before = bytesInUse();
            HRCompactFrameCache cache("x");
            fill(&cache, path);
            return bytesInUse() - before;
        },
        1, Unit::bytes });
}

/// A clip whose pictures are all in a cache, and what one picture costs without one.
struct CachedClip
{
    explicit CachedClip(const Clip &clip)
        : name(clip.name)
        , straight(clip.path)
    {
        fill(&cache, clip.path);
        straight.decode(10);
    }

    QString name;
    HRCompactFrameCache cache{ "x" };
    OneThread straight;
};

/// The one that is in use; only one is kept, since a clip in motion takes a gigabyte.
std::unique_ptr<CachedClip> &cachedClip()
{
    static std::unique_ptr<CachedClip> cached;
    return cached;
}

CachedClip &cachedClipOf(const QSize &size, bool isScreen)
{
    const Clip &clip = clipOf(size, isScreen);
    if (!cachedClip() || cachedClip()->name != clip.name)
        cachedClip() = std::make_unique<CachedClip>(clip);
    return *cachedClip();
}

double scalingTime(CachedClip &clip)
{
    return processorSeconds([&] {
        for (int i = 0; i < clipPictures; ++i)
            clip.straight.scale();
    }) / clipPictures;
}

/// How long each reading takes: the median of several rounds, so that a slow picture counts and a
/// moment in which the machine was slow does not.
std::vector<double> readingTimes(HRCompactFrameCache &cache, const std::vector<size_t> &indexes)
{
    constexpr int Rounds = 5;
    std::vector<std::vector<double>> rounds(indexes.size());
    HRVideoFrame shown; // as the item holds the picture before
    for (int round = 0; round < Rounds; ++round) {
        for (size_t i = 0; i < indexes.size(); ++i)
            rounds[i].push_back(processorSeconds([&] { shown = cache.frame(indexes[i]); }));
    }
    std::vector<double> times;
    for (const std::vector<double> &taken : rounds)
        times.push_back(quantile(taken, 0.5));
    return times;
}

std::vector<size_t> inOrder()
{
    std::vector<size_t> indexes(clipPictures);
    std::iota(indexes.begin(), indexes.end(), size_t(0));
    return indexes;
}

std::vector<size_t> atRandom()
{
    std::mt19937 generator(1);
    std::vector<size_t> indexes(clipPictures);
    std::generate(indexes.begin(), indexes.end(), [&] { return generator() % clipPictures; });
    return indexes;
}

void addReading(FigureRuns &runs, const QSize &size, bool isScreen)
{
    const Measure scaling = [=] { return scalingTime(cachedClipOf(size, isScreen)); };
    runs.add({ named("read in order, mean", size, isScreen), 0, Bar::atMost(1), scaling,
        [=] {
            const auto times = readingTimes(cachedClipOf(size, isScreen).cache, inOrder());
            return std::accumulate(times.begin(), times.end(), 0.0) / clipPictures;
        },
        5 });
    runs.add({ named("read at random, 99 %", size, isScreen), 0, Bar::atMost(2), scaling,
        [=] {
            return quantile(readingTimes(cachedClipOf(size, isScreen).cache, atRandom()), 0.99);
        },
        5 });
}

} // namespace

void addCacheFigures(FigureRuns &runs)
{
    for (const bool isScreen : { true, false }) {
        for (const QSize &size : { SmallClip, LargeClip }) {
            addDecoding(runs, size, isScreen);
            addReading(runs, size, isScreen);
        }
    }
}
