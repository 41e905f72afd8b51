// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "Clips.h"
#include "Figures.h"
#include "OneThread.h"
#include "video/HRClip_p.h"
#include "video/HRCompactFrameCache_p.h"
#include "video/HRVideoSourceFFMPEG.h"

#include <QSemaphore>
#include <QUrl>

#include <malloc.h>
#include <numeric>
#include <random>

using namespace Hintreels;

namespace {

constexpr int runs = 5;

// From a resting thread asked for the clip to the end of its stream.
double effortToDecode(const QString &path)
{
    HRVideoSourceFFMPEG source;
    QSemaphore ended;
    QObject::connect(
        &source, &HRVideoSource::streamEnded, &source, [&ended] { ended.release(); },
        Qt::DirectConnection);
    source.start();
    return effortOf([&] {
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
        qFatal("cannot open %s", qPrintable(path));
    for (HRVideoFrame picture = clip.readPicture(); !picture.isNull(); picture = clip.readPicture())
        cache->addFrame(picture);
}

Figure decoding(const Clip &clip)
{
    const Least least = leastOf(
        runs, [&] { return effortOf([&] { OneThread(clip.path).decode(clipPictures); }); },
        [&] { return effortToDecode(clip.path); });
    return { "decode whole, " + clip.name, Figure::ratio, "s", least.baseline, least.ours,
        clip.isScreen ? 1.4 : 1.6 };
}

Figure memory(const Clip &clip)
{
    const double before = bytesInUse();
    HRCompactFrameCache cache("x");
    fill(&cache, clip.path);
    const double bytes = bytesInUse() - before;
    const double plain = 4.0 * clip.size.width() * clip.size.height() * clipPictures;
    return { "memory, " + clip.name, Figure::ratio, "MB", plain / 1e6, bytes / 1e6,
        clip.isScreen ? 0.10 : 1.02 };
}

QVector<double> readingTimes(HRCompactFrameCache *cache, const QVector<int> &indexes)
{
    QVector<double> times;
    HRVideoFrame shown; // as the item holds the picture before
    for (int index : indexes)
        times.append(effortOf([&] { shown = cache->frame(size_t(index)); }));
    return times;
}

Figures reading(const Clip &clip)
{
    HRCompactFrameCache cache("x");
    fill(&cache, clip.path);
    OneThread straight(clip.path);
    straight.decode(10);
    QVector<int> inOrder;
    QVector<int> random;
    std::mt19937 generator(1);
    for (int i = 0; i < clipPictures; ++i) {
        inOrder.append(i);
        random.append(int(generator() % clipPictures));
    }
    double scaling = 1e9;
    double mean = 1e9;
    double late = 1e9;
    for (int run = 0; run < runs; ++run) {
        scaling = qMin(scaling, effortOf([&] {
            for (int i = 0; i < clipPictures; ++i)
                straight.scale();
        }) / clipPictures);
        const QVector<double> times = readingTimes(&cache, inOrder);
        mean = qMin(mean, std::accumulate(times.begin(), times.end(), 0.0) / clipPictures);
        late = qMin(late, quantile(readingTimes(&cache, random), 0.99));
    }
    return { { "read in order, mean, " + clip.name, Figure::ratio, "ms", scaling * 1e3, mean * 1e3,
                 1.0 },
        { "read at random, 99 %, " + clip.name, Figure::ratio, "ms", scaling * 1e3, late * 1e3,
            2.0 } };
}

} // namespace

Figures cacheFigures(const Clip &clip)
{
    return Figures{ decoding(clip), memory(clip) } + reading(clip);
}
