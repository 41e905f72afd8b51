// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "Clips.h"
#include "FigureRuns.h"
#include "Measuring.h"
#include "OneThread.h"
#include "VideoFigures.h"
#include "video/HRVideoController.h"
#include "video/HRVideoFrameCache.h"
#include "video/HRVideoSourceFFMPEG.h"

#include <QElapsedTimer>
#include <QSemaphore>
#include <QUrl>

#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

using namespace Hintreels;

namespace {

constexpr int requests = 200;
constexpr unsigned long settling = 2000; // us, until a thread rests again

/// The median time from @p request to the moment at which the other thread calls @p seen.
class HandOff
{
public:
    void seen()
    {
        m_arrived = m_timer.nsecsElapsed();
        m_done.release();
    }

    template <typename Request>
    double median(Request request)
    {
        std::vector<double> times;
        for (int i = 0; i < requests; ++i) {
            QThread::usleep(settling);
            m_timer.start();
            request(i);
            m_done.acquire();
            times.push_back(double(m_arrived) / 1e9);
        }
        return quantile(times, 0.5);
    }

private:
    QElapsedTimer m_timer;
    qint64 m_arrived = 0;
    QSemaphore m_done;
};

double throughACondition()
{
    std::mutex mutex;
    std::condition_variable condition;
    int wanted = 0;
    HandOff handOff;
    std::thread other([&] {
        for (int i = 1; i <= requests; ++i) {
            std::unique_lock<std::mutex> lock(mutex);
            condition.wait(lock, [&] { return wanted == i; });
            lock.unlock();
            handOff.seen();
        }
    });
    const double median = handOff.median([&](int i) {
        {
            const std::lock_guard<std::mutex> lock(mutex);
            wanted = i + 1;
        }
        condition.notify_one();
    });
    other.join();
    return median;
}

double sourceSet()
{
    HRVideoSourceFFMPEG source;
    HandOff handOff;
    QObject::connect(
        &source, &HRVideoSource::actionChanged, &source,
        [&] {
            if (source.action() == HRVideoSource::closeAction)
                handOff.seen();
        },
        Qt::DirectConnection);
    source.start();
    return handOff.median([&](int) { source.setAction(HRVideoSource::closeAction); });
}

double play()
{
    HRVideoSourceFFMPEG source;
    source.changeSetSource(QUrl("file:///x"));
    source.setupSource();
    for (int i = 0; i < 2; ++i)
        source.pushFrame(HRVideoFrame(16, 16, QImage::Format_RGB32, 0));
    auto *controller = new HRVideoController(&source);
    HandOff handOff;
    QObject::connect(
        controller, &HRVideoController::displayFrame, controller,
        [&] {
            if (controller->position() == 2)
                handOff.seen();
        },
        Qt::DirectConnection);
    controller->start();
    const double median = handOff.median([&](int) {
        controller->pause();
        controller->setPosition(1);
        controller->play();
    });
    controller->quit();
    delete controller;
    return median;
}

/// Notes when its thread has left its loop.
class EndingSource : public HRVideoSourceFFMPEG
{
public:
    ~EndingSource() override { quit(); }

    QElapsedTimer timer;
    qint64 left = 0; // ns

protected:
    void run() override
    {
        HRVideoSourceFFMPEG::run();
        left = timer.nsecsElapsed();
    }
};

double quitting()
{
    std::vector<double> times;
    for (int i = 0; i < requests; ++i) {
        EndingSource source;
        source.start();
        QThread::usleep(settling);
        source.timer.start();
        source.quit();
        times.push_back(double(source.left) / 1e9);
    }
    return quantile(times, 0.5);
}

constexpr int sourcesBefore = 20;

/// From a resting thread asked for many clips at once, to the moment the last is open.
double lastOfManySources(const QStringList &paths)
{
    HRVideoSourceFFMPEG source;
    const QUrl last = QUrl::fromLocalFile(paths.last());
    QSemaphore opened;
    QObject::connect(
        &source, &HRVideoSource::sourceLoaded, &source,
        [&] {
            if (source.source() == last)
                opened.release();
        },
        Qt::DirectConnection);
    source.start();
    QThread::usleep(settling);
    return seconds([&] {
        for (const QString &path : paths)
            source.setSource(QUrl::fromLocalFile(path));
        opened.acquire();
    });
}

double openedInTurn(const QStringList &paths)
{
    return seconds([&] {
        for (const QString &path : paths)
            OneThread clip(path);
    });
}

const QStringList &manyClips()
{
    static const QStringList clips = copiedClips(sourcesBefore + 1);
    return clips;
}

} // namespace

void addThreadFigures(FigureRuns &runs)
{
    const auto add = [&](const char *request, const Measure &ours) {
        runs.add({ std::string("request to a resting thread, ") + request, 0, Bar::atMost(3),
            throughACondition, ours, 3 });
    };
    add("change", sourceSet);
    add("play", play);
    add("quit", quitting);
    runs.add({ "a source set behind twenty others", 0, Bar::atMost(1.2),
        [] { return openedInTurn(manyClips()); }, [] { return lastOfManySources(manyClips()); } });
}
