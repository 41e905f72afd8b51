// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRVideoController_p.h"

#include "video/HRSchedule_p.h"
#include "video/HRVideoSource.h"
#include "video/stopThread_p.h"

#include <algorithm>

namespace Hintreels {

namespace {

constexpr int longestLockWait = 100; // ms
constexpr std::chrono::milliseconds longestRest(100);

} // namespace

HRPlayhead::Step HRVideoControllerPrivate::nextStepLocked()
{
    const HRPlayhead::Step step = playhead.nextStep(pictureCount());
    if (step != HRPlayhead::showStill)
        return step;
    // It is the first picture that tells whether there are any to show.
    if (picture(0).isNull())
        return HRPlayhead::rest;
    playhead.setNeedsPicture(false);
    return step;
}

quint64 HRVideoControllerPrivate::pictureCount() const
{
    return source ? source->totalFrameCount() : 0;
}

HRVideoFrame HRVideoControllerPrivate::picture(quint64 index) const
{
    // Compared before it is narrowed.
    return index < pictureCount() ? source->getFrame(unsigned(index)) : HRVideoFrame();
}

void HRVideoControllerPrivate::pace(const HRPlayhead::Advance &advance, HRDueTime::Time came)
{
    HRPacing pacing{ advance.displayed, advance.position, source->frameRate(), {},
        QDateTime::currentDateTime(), source->shownByFile(advance.seen) };
    {
        const HRMutexLocker lock(controllerMutex);
        pacing.last = lastFrameDisplayTime;
        if (advance.moves)
            lastFrameDisplayTime = pacing.now;
    }
    sleepUntil(due.next(came, pacing.delay()));
}

/// Only the wish to quit and a position moved by hand end the sleep early, or else whoever asks for
/// this and that would push a clip on; but a clip with one picture in a quarter of an hour obeys.
void HRVideoControllerPrivate::sleepUntil(HRDueTime::Time latest)
{
    while (wakeup->waitUntil(latest)) {
        const HRMutexLocker lock(controllerMutex);
        if (!shouldQuit && !playhead.hasMoved())
            continue;
        due.forget();
        return;
    }
}

HRVideoController::HRVideoController(HRVideoSource *source, QObject *parent)
    : QThread(parent)
    , d(new HRVideoControllerPrivate)
{
    setObjectName(QStringLiteral("Controller"));
    d->source = source;
    connect(this, &QThread::finished, this, &QObject::deleteLater);
    if (!source)
        return;
    source->onFirstPicture([wakeup = d->wakeup] { wakeup->ring(); });
    connect(source, &HRVideoSource::streamEnded, this, &HRVideoController::streamEnded);
    connect(source, &HRVideoSource::sourceLoaded, this, &HRVideoController::sourceLoaded);
    connect(
        source, &HRVideoSource::loadProgressChanged, this, &HRVideoController::loadProgressChanged);
}

HRVideoController::~HRVideoController()
{
    setShouldQuit();
}

void HRVideoController::play()
{
    bool rewound = false;
    {
        const HRMutexLocker lock(d->controllerMutex);
        rewound = d->playhead.play(d->pictureCount());
    }
    if (rewound)
        Q_EMIT positionChanged();
    Q_EMIT stateChanged();
    d->wakeup->ring();
}

void HRVideoController::pause()
{
    setState(controllerPaused);
}

void HRVideoController::setState(State state)
{
    {
        const HRMutexLocker lock(d->controllerMutex);
        d->playhead.setState(state);
    }
    Q_EMIT stateChanged();
    d->wakeup->ring();
}

HRVideoController::State HRVideoController::state() const
{
    const HRMutexLocker lock(d->controllerMutex);
    return d->playhead.state();
}

void HRVideoController::setPosition(size_t index)
{
    {
        const HRMutexLocker lock(d->controllerMutex);
        d->playhead.goTo(index, d->pictureCount());
    }
    Q_EMIT positionChanged();
    d->wakeup->ring();
}

size_t HRVideoController::position() const
{
    return d->playhead.position();
}

void HRVideoController::setProgress(double progress)
{
    // Clamped before it is converted; what is not a number is not above 0.
    const double fraction = progress > 0.0 ? std::min(progress, 1.0) : 0.0;
    setPosition(size_t(double(frameCount()) * fraction));
}

double HRVideoController::progress() const
{
    const size_t count = frameCount();
    return count == 0 ? 0.0 : double(position()) / double(count);
}

double HRVideoController::loadProgress() const
{
    const size_t count = frameCount();
    return count == 0 ? 0.0 : double(d->source->loadedFrameCount()) / double(count);
}

void HRVideoController::setScrubbing(bool scrubbing)
{
    const HRMutexLocker lock(d->controllerMutex);
    d->playhead.setScrubbing(scrubbing);
}

bool HRVideoController::isScrubbing() const
{
    const HRMutexLocker lock(d->controllerMutex);
    return d->playhead.isScrubbing();
}

void HRVideoController::setAwaitsDecoder(bool awaits)
{
    d->change([this, awaits] { d->playhead.setAwaitsDecoder(awaits); });
}

void HRVideoController::setNeedFrame(bool needFrame)
{
    d->change([this, needFrame] { d->playhead.setNeedsPicture(needFrame); });
}

QDateTime HRVideoController::lastFrameDisplayTime() const
{
    const HRMutexLocker lock(d->controllerMutex);
    return d->lastFrameDisplayTime;
}

void HRVideoController::setLastFrameDisplayTime(const QDateTime &time)
{
    const HRMutexLocker lock(d->controllerMutex);
    d->lastFrameDisplayTime = time;
}

size_t HRVideoController::frameCount() const
{
    return d->pictureCount();
}

HRVideoFrame HRVideoController::currentFrame()
{
    const HRMutexLocker lock(d->controllerMutex);
    d->playhead.fetch();
    return d->picture(d->playhead.position());
}

bool HRVideoController::replaceByCurrentFrame(HRVideoFrame *picture)
{
    const HRMutexLocker lock(d->controllerMutex);
    d->playhead.fetch();
    return replaceByFrame(d->playhead.position(), picture);
}

bool HRVideoController::replaceByFrame(size_t index, HRVideoFrame *picture)
{
    const HRMutexLocker lock(d->controllerMutex);
    if (index >= d->pictureCount())
        return false;
    *picture = HRVideoFrame();
    *picture = d->picture(index);
    return !picture->isNull();
}

HRVideoFrame HRVideoController::getFrame(size_t index)
{
    const HRMutexLocker lock(d->controllerMutex);
    return d->picture(index);
}

QUrl HRVideoController::source() const
{
    return d->source ? d->source->source() : QUrl();
}

bool HRVideoController::setSource(const QUrl &url)
{
    setNeedFrame(true);
    streamEnded();
    setPosition(0);
    setState(controllerPaused);
    if (!d->source || !d->source->setSource(url))
        return false;
    {
        const HRMutexLocker lock(d->controllerMutex);
        d->playhead.setPosition(0);
    }
    setNeedFrame(true);
    return true;
}

void HRVideoController::close()
{
    if (d->source)
        d->source->close();
}

double HRVideoController::frameWidth() const
{
    return d->source ? d->source->frameWidth() : 0.0;
}

double HRVideoController::frameHeight() const
{
    return d->source ? d->source->frameHeight() : 0.0;
}

void HRVideoController::setShouldQuit()
{
    d->change([this] { d->shouldQuit = true; });
}

bool HRVideoController::shouldQuit() const
{
    if (!d->controllerMutex.tryLock(longestLockWait))
        return false;
    const bool answer = d->shouldQuit;
    d->controllerMutex.unlock();
    return answer;
}

void HRVideoController::quit()
{
    stopThreadAtLast(this, "HRVideoController");
}

void HRVideoController::streamEnded()
{
    bool paused = false;
    {
        const HRMutexLocker lock(d->controllerMutex);
        paused = d->playhead.endDecoding();
    }
    if (paused)
        Q_EMIT stateChanged();
    Q_EMIT loadProgressChanged();
    setNeedFrame(true);
}

void HRVideoController::sourceLoaded()
{
    setNeedFrame(true);
    Q_EMIT widthChanged();
    Q_EMIT heightChanged();
    Q_EMIT loadProgressChanged();
}

void HRVideoController::run()
{
    const HRSchedule::Work work(this);
    while (!shouldQuit()) {
        if (!d->controllerMutex.tryLock(longestLockWait))
            continue;
        const HRPlayhead::Step step = d->nextStepLocked();
        d->controllerMutex.unlock();

        if (step == HRPlayhead::present) {
            presentPicture();
            continue;
        }
        d->due.forget();
        if (step == HRPlayhead::showStill)
            Q_EMIT displayFrame();
        if (step == HRPlayhead::announceEnd)
            Q_EMIT stateChanged();
        d->wakeup->waitFor(longestRest);
    }
}

void HRVideoController::presentPicture()
{
    HRPlayhead::Advance advance;
    HRDueTime::Time came;
    {
        const HRMutexLocker lock(d->controllerMutex);
        came = std::chrono::steady_clock::now();
        advance = d->playhead.advance(d->pictureCount(), d->source->isTimedByFile());
    }
    if (advance.displays)
        Q_EMIT displayFrame();
    if (advance.moves)
        Q_EMIT positionChanged();
    if (advance.paces)
        d->pace(advance, came);
}

} // namespace Hintreels
