// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRVideoController.h"

#include "video/HRMutex_p.h"
#include "video/HRPacing_p.h"
#include "video/HRSchedule_p.h"
#include "video/HRVideoSource.h"
#include "video/HRWakeup_p.h"

#include <QDebug>

#include <algorithm>
#include <atomic>

namespace Hintreels {

namespace {

constexpr unsigned long quitTime = 10000; // ms, before and after terminating
constexpr int longestLockWait = 100; // ms
constexpr std::chrono::milliseconds longestRest(100);

} // namespace

struct HRVideoControllerPrivate
{
    /// What one pass of the thread finds to do.
    enum Step
    {
        present, ///< the next picture of a clip that plays
        showStill, ///< the picture at the position of a clip that is paused
        announceEnd, ///< the position has reached the last picture
        rest
    };

    Step nextStepLocked();
    void goToLocked(quint64 index);
    bool isFrameAvailable(quint64 index) const;
    quint64 frameCount() const;
    HRVideoFrame frame(quint64 index) const;
    bool isSleepOverLocked() const;

    HRVideoSource *source = nullptr;
    quint64 displayedIndex = 0;
    std::atomic<quint64> position{ 0 }; // written under the lock, read without
    // Guards every field but source, due and wakeup. The source's locks are taken while it is held,
    // never the other way round.
    HRMutex controllerMutex{ HRLock::controller };
    bool shouldQuit = false;
    bool needFrame = true;
    bool scrubbing = false;
    bool moved = false; // by hand, since the last picture
    QDateTime lastFrameDisplayTime;
    HRVideoController::State state = HRVideoController::controllerPaused;
    HRDueTime due; // the controller's thread only
    // Rung by every request, and by the source at the first picture of a clip.
    std::shared_ptr<HRWakeup> wakeup = std::make_shared<HRWakeup>();
};

HRVideoControllerPrivate::Step HRVideoControllerPrivate::nextStepLocked()
{
    if (state != HRVideoController::controllerPaused) {
        if (isFrameAvailable(position)) {
            needFrame = false;
            return present;
        }
        if (frameCount() < position)
            return rest;
        state = HRVideoController::controllerPaused;
        return announceEnd;
    }
    if (!needFrame || !isFrameAvailable(position) || frame(0).isNull())
        return rest;
    needFrame = false;
    return showStill;
}

void HRVideoControllerPrivate::goToLocked(quint64 index)
{
    // Without any picture this wraps round to the largest number, as the header says.
    const quint64 count = frameCount();
    position = index < count ? index : count - 1;
    // The picture there counts as one step ahead of what is shown.
    displayedIndex = position - 1;
    needFrame = true;
}

bool HRVideoControllerPrivate::isFrameAvailable(quint64 index) const
{
    return source && source->isFrameAvailable(index);
}

quint64 HRVideoControllerPrivate::frameCount() const
{
    return source ? source->totalFrameCount() : 0;
}

HRVideoFrame HRVideoControllerPrivate::frame(quint64 index) const
{
    // Compared before it is narrowed.
    return isFrameAvailable(index) ? source->getFrame(unsigned(index)) : HRVideoFrame();
}

bool HRVideoControllerPrivate::isSleepOverLocked() const
{
    return shouldQuit || moved;
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
    source->setReader(d->wakeup);
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
        d->state = controllerPlaying;
        rewound = d->position >= d->frameCount();
        if (rewound)
            d->goToLocked(0);
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
        d->state = state;
    }
    Q_EMIT stateChanged();
    d->wakeup->ring();
}

HRVideoController::State HRVideoController::state() const
{
    const HRMutexLocker lock(d->controllerMutex);
    return d->state;
}

void HRVideoController::setPosition(size_t index)
{
    {
        const HRMutexLocker lock(d->controllerMutex);
        d->goToLocked(index);
        d->moved = true;
    }
    Q_EMIT positionChanged();
    d->wakeup->ring();
}

size_t HRVideoController::position() const
{
    return d->position;
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
    d->scrubbing = scrubbing;
}

bool HRVideoController::isScrubbing() const
{
    const HRMutexLocker lock(d->controllerMutex);
    return d->scrubbing;
}

void HRVideoController::setNeedFrame(bool needFrame)
{
    {
        const HRMutexLocker lock(d->controllerMutex);
        d->needFrame = needFrame;
    }
    d->wakeup->ring();
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
    return d->frameCount();
}

HRVideoFrame HRVideoController::currentFrame()
{
    const HRMutexLocker lock(d->controllerMutex);
    d->displayedIndex = d->position;
    return d->frame(d->position);
}

bool HRVideoController::replaceByCurrentFrame(HRVideoFrame *frame)
{
    const HRMutexLocker lock(d->controllerMutex);
    d->displayedIndex = d->position;
    if (!d->isFrameAvailable(d->position))
        return false;
    *frame = HRVideoFrame();
    *frame = d->frame(d->position);
    return !frame->isNull();
}

HRVideoFrame HRVideoController::getFrame(size_t index)
{
    const HRMutexLocker lock(d->controllerMutex);
    return d->frame(index);
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
        d->position = 0;
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
    {
        const HRMutexLocker lock(d->controllerMutex);
        d->shouldQuit = true;
    }
    d->wakeup->ring();
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
    setShouldQuit();
    if (wait(quitTime)) {
        HRSchedule::hasEnded(this);
        return;
    }
    qDebug("HRVideoController did not quit in a timely fashion");
    terminate();
    if (!wait(quitTime))
        qDebug("HRVideoController did not quit at all");
}

void HRVideoController::streamEnded()
{
    bool paused = false;
    {
        const HRMutexLocker lock(d->controllerMutex);
        paused = !d->scrubbing;
        if (paused)
            d->state = controllerPaused;
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
    using Private = HRVideoControllerPrivate;
    const HRSchedule::Work work(this);
    while (!shouldQuit()) {
        if (!d->controllerMutex.tryLock(longestLockWait))
            continue;
        const Private::Step step = d->nextStepLocked();
        d->controllerMutex.unlock();

        if (step == Private::present) {
            presentFrame();
            continue;
        }
        d->due.forget();
        if (step == Private::showStill)
            Q_EMIT displayFrame();
        if (step == Private::announceEnd)
            Q_EMIT stateChanged();
        d->wakeup->waitFor(longestRest);
    }
}

void HRVideoController::presentFrame()
{
    HRPacing pacing;
    bool advances = false;
    bool playing = false;
    HRDueTime::Time came;
    {
        const HRMutexLocker lock(d->controllerMutex);
        came = std::chrono::steady_clock::now();
        d->moved = false;
        playing = d->state == controllerPlaying;
        const quint64 count = d->frameCount();
        pacing.displayed = d->displayedIndex;
        pacing.position = d->position;
        if (playing && pacing.displayed == pacing.position && pacing.displayed >= count)
            return;
        advances = playing && pacing.position < count;
        // Before the picture goes out: who fetches it finds the new position.
        if (advances)
            ++d->position;
    }
    if (!playing || advances)
        Q_EMIT displayFrame();
    if (advances)
        Q_EMIT positionChanged();
    if (playing)
        pace(&pacing, advances, came);
}

void HRVideoController::pace(
    HRPacing *pacing, bool advanced, std::chrono::steady_clock::time_point came)
{
    pacing->frameRate = d->source->frameRate();
    pacing->last = lastFrameDisplayTime();
    pacing->now = QDateTime::currentDateTime();
    if (advanced)
        setLastFrameDisplayTime(pacing->now);
    sleepUntil(d->due.next(came, pacing->delay()));
}

/// Only the wish to quit and a position moved by hand end the sleep early, or else whoever asks for
/// this and that would push a clip on; but a clip with one picture in a quarter of an hour obeys.
void HRVideoController::sleepUntil(std::chrono::steady_clock::time_point due)
{
    while (d->wakeup->waitUntil(due)) {
        const HRMutexLocker lock(d->controllerMutex);
        if (!d->isSleepOverLocked())
            continue;
        d->due.forget();
        return;
    }
}

} // namespace Hintreels
