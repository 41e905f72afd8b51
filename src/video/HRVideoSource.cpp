// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRVideoSource.h"

#include "video/HRSchedule_p.h"
#include "video/HRVideoSource_p.h"
#include "video/stopThread_p.h"

#include <algorithm>
#include <limits>

namespace Hintreels {

namespace {

constexpr std::chrono::milliseconds longestPause(100);

// Of a picture: its own time is to find it, and a fraction of it is to find none before.
constexpr double rounding = 1e-6;

/// In seconds; 0 where the rate says nothing.
double periodOf(double rate)
{
    return rate > 0.0 ? 1.0 / rate : 0.0;
}

} // namespace

HRVideoSourceChange::HRVideoSourceChange(HRVideoSource::Action theAction)
    : action(theAction)
{
}

HRVideoSourceChange::~HRVideoSourceChange() = default;

int HRVideoSourceChange::type() const
{
    return 1;
}

void HRVideoSourceChange::apply(HRVideoSource *source)
{
    source->changeSetAction(action);
}

HRVideoSourceSourceChange::HRVideoSourceSourceChange(const QUrl &theUrl)
    : HRVideoSourceChange(HRVideoSource::loadAction)
    , url(theUrl)
{
}

int HRVideoSourceSourceChange::type() const
{
    return 3;
}

void HRVideoSourceSourceChange::apply(HRVideoSource *source)
{
    source->changeSetSource(url);
    source->changeSetAction(action);
}

HRVideoSource::HRVideoSource(QObject *parent)
    : QThread(parent)
    , d(new HRVideoSourcePrivate)
{
}

HRVideoSource::~HRVideoSource()
{
    quit();
}

void HRVideoSource::close()
{
    setSource(QUrl());
}

void HRVideoSource::changeSetAction(Action action)
{
    if (action == -1)
        return;
    {
        const HRMutexLocker lock(d->stateMutex);
        d->action = action;
    }
    Q_EMIT actionChanged();
}

void HRVideoSource::changeSetSource(const QUrl &url)
{
    const HRMutexLocker lock(d->stateMutex);
    d->source = url;
}

bool HRVideoSource::loadSource()
{
    Q_EMIT sourceLoaded();
    return true;
}

bool HRVideoSource::setSource(const QUrl &url)
{
    const HRMutexLocker lock(d->stateMutex);
    if (!url.isValid() || url == d->source)
        return false;
    d->changes.append(std::make_unique<HRVideoSourceSourceChange>(url));
    return true;
}

void HRVideoSource::setAction(Action action)
{
    d->changes.append(std::make_unique<HRVideoSourceChange>(action));
}

void HRVideoSource::setShouldQuit()
{
    {
        const HRMutexLocker lock(d->stateMutex);
        d->shouldQuit = true;
    }
    wake();
}

void HRVideoSource::quit()
{
    stopThreadAtLast(this, "HRVideoSource");
}

QUrl HRVideoSource::source()
{
    const HRMutexLocker lock(d->stateMutex);
    return d->source;
}

HRVideoSource::Action HRVideoSource::action()
{
    const HRMutexLocker lock(d->stateMutex);
    return d->action;
}

bool HRVideoSource::shouldQuit()
{
    const HRMutexLocker lock(d->stateMutex);
    return d->shouldQuit;
}

void HRVideoSource::pushFrame(const HRVideoFrame &picture)
{
    const double unknown = std::numeric_limits<double>::quiet_NaN();
    pushFrame(picture, unknown, unknown);
}

void HRVideoSource::pushFrame(const HRVideoFrame &picture, double start, double length)
{
    const double period = periodOf(frameRate());
    std::function<void()> tellOfFirst;
    {
        const HRMutexLocker lock(d->frameMutex);
        if (!d->cache)
            return;
        if (d->cache->length() == 0)
            tellOfFirst = d->onFirstPicture;
        d->cache->addFrame(picture);
        // Which leaves out what there is no memory for.
        if (d->cache->length() > d->times.count())
            d->times.append({ start, length }, period);
    }
    if (tellOfFirst)
        tellOfFirst();
}

HRVideoFrame HRVideoSource::getFrame(unsigned int index)
{
    const HRMutexLocker lock(d->frameMutex);
    if (!isFrameAvailable(index))
        return HRVideoFrame();
    HRVideoFrame picture = d->cache->frame(index);
    if (d->isTimedByFile)
        picture.setPts(d->times.start(index));
    return picture;
}

bool HRVideoSource::isFrameAvailable(size_t index)
{
    const HRMutexLocker lock(d->frameMutex);
    return d->cache && d->cache->length() > index;
}

size_t HRVideoSource::loadedFrameCount()
{
    return totalFrameCount();
}

size_t HRVideoSource::totalFrameCount()
{
    const HRMutexLocker lock(d->frameMutex);
    return d->cache ? d->cache->length() : 0;
}

void HRVideoSource::setTimedByFile(bool timed)
{
    const HRMutexLocker lock(d->frameMutex);
    d->isTimedByFile = timed;
}

bool HRVideoSource::isTimedByFile()
{
    const HRMutexLocker lock(d->frameMutex);
    return d->isTimedByFile;
}

double HRVideoSource::shownByFile(size_t index)
{
    const HRMutexLocker lock(d->frameMutex);
    if (!d->isTimedByFile || index >= d->times.count())
        return 0.0;
    return d->times.end(index) - d->times.start(index);
}

double HRVideoSource::clipLength()
{
    const double period = periodOf(frameRate());
    const HRMutexLocker lock(d->frameMutex);
    return d->isTimedByFile ? d->times.length() : double(d->times.count()) * period;
}

size_t HRVideoSource::indexAt(double seconds)
{
    const double length = clipLength();
    const HRMutexLocker lock(d->frameMutex);
    const size_t count = d->times.count();
    if (d->isTimedByFile)
        return d->times.indexAt(seconds);
    if (!(seconds > 0.0) || !(length > 0.0))
        return 0;
    const double passed = double(count) * std::min(seconds / length, 1.0);
    return std::min(size_t(passed + rounding), count - 1);
}

void HRVideoSource::onFirstPicture(std::function<void()> tell)
{
    const HRMutexLocker lock(d->frameMutex);
    d->onFirstPicture = std::move(tell);
}

void HRVideoSource::clearChanges()
{
    const HRMutexLocker lock(d->stateMutex);
    d->changes.clear();
}

void HRVideoSource::setupSource()
{
    const QString name = source().toString();
    std::unique_ptr<HRVideoFrameCache> previous = createCache(name);
    {
        const HRMutexLocker lock(d->frameMutex);
        d->cache.swap(previous);
        d->times.clear();
    }
    // Freeing a long clip takes a while, and nobody waits for it here.
    previous.reset();
    setAction(source().isEmpty() ? idleAction : decodeAction);
    Q_EMIT sourceChanged();
}

void HRVideoSource::notifyStreamEnded()
{
    Q_EMIT streamEnded();
}

void HRVideoSource::dropClip()
{
    const HRSchedule::Work work(this);
    std::unique_ptr<HRVideoFrameCache> dropped;
    {
        const HRMutexLocker lock(d->frameMutex);
        d->cache.swap(dropped);
        d->times.clear();
    }
}

void HRVideoSource::processActionQueue()
{
    const std::unique_ptr<HRVideoSourceChange> change = d->changes.takeFirst();
    if (change)
        change->apply(this);
}

void HRVideoSource::rest()
{
    d->changes.wait(longestPause);
}

void HRVideoSource::wake()
{
    d->changes.wake();
}

std::unique_ptr<HRVideoFrameCache> HRVideoSource::createCache(const QString &name) const
{
    return std::make_unique<HRVideoFrameCache>(name);
}

} // namespace Hintreels
