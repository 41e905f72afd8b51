// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRVideoComponent_p.h"

#include "video/HRClipFinder_p.h"
#include "video/retiredSources_p.h"

#include <QPainter>
#include <QUrl>

namespace Hintreels {

HRVideoComponent::HRVideoComponent(QQuickItem *parent)
    : QQuickPaintedItem(parent)
    , d(new HRVideoComponentPrivate(this))
{
    connect(d->controller, &HRVideoController::displayFrame, this, &HRVideoComponent::frameReady);
    setFlag(ItemHasContents, true);
    connect(d->controller, &HRVideoController::stateChanged, this,
        &HRVideoComponent::sourceChangedState);
    connect(d->controller, &HRVideoController::positionChanged, this,
        &HRVideoComponent::controllerPositionChanged);
    connect(d->controller, &HRVideoController::heightChanged, this,
        &HRVideoComponent::contentHeightChanged);
    connect(d->controller, &HRVideoController::widthChanged, this,
        &HRVideoComponent::contentWidthChanged);
    connect(d->controller, &HRVideoController::loadProgressChanged, this,
        &HRVideoComponent::loadProgressChanged);
    connect(d->videoSource, &HRVideoSource::sourceChanged, this, [this] { d->sourceTaken(); });
    // Behind the controller's own slot, which may pause.
    connect(d->videoSource, &HRVideoSource::streamEnded, this, [this] { d->decodingEnded(); });
    connect(d->videoSource, &HRVideoSourceFFMPEG::clipFailed, this, [this] { d->clipFailed(); });
    connect(
        d->videoSource, &HRVideoSourceFFMPEG::flashingFound, this, [this] { d->lookForFlashes(); });
    followWindow(window()); // the base has put the item there before it was one of this class
    d->followVisibility(window());
    d->controller->start(QThread::InheritPriority);
    d->videoSource->start(QThread::InheritPriority);
}

HRVideoComponent::~HRVideoComponent()
{
    // The controller reads what the source has.
    d->controller->quit();
    d->controller->wait();
    retireSource(std::unique_ptr<HRVideoSource>(d->videoSource));
}

QString HRVideoComponent::source() const
{
    return d->source;
}

void HRVideoComponent::setSource(const QString &source)
{
    if (source.isEmpty()) {
        d->controller->setSource(QUrl(source));
        d->source = source;
        d->apply(HRClipEvent::rewound);
        d->apply(HRClipEvent::unwanted);
    }
    HRClipFinder *finder = HRClipFinder::of(window());
    if (!finder)
        return;
    d->source = source;
    d->videoSource->setLargestPicture(finder->largestPicture());
    const QString path = finder->findClip(source);
    if (!path.isEmpty())
        d->open(QUrl::fromLocalFile(path));
    d->dropPicture();
}

HRVideoComponent::VideoState HRVideoComponent::state() const
{
    return d->controller->state() == HRVideoController::controllerPlaying ? playingState
                                                                          : pausedState;
}

void HRVideoComponent::setState(VideoState state)
{
    switch (state) {
    case playingState:
        play();
        break;
    case pausedState:
        pause();
        break;
    case resetState:
        d->controller->streamEnded();
        if (!d->isPlaying())
            d->apply(HRClipEvent::unwanted);
        break;
    }
}

qint64 HRVideoComponent::position() const
{
    return qint64(d->controller->position());
}

void HRVideoComponent::setPosition(qint64 position)
{
    d->apply(HRClipEvent::moved);
    d->controller->setPosition(size_t(position));
}

double HRVideoComponent::progress() const
{
    return d->controller->progress();
}

void HRVideoComponent::setProgress(double progress)
{
    d->apply(HRClipEvent::moved);
    d->controller->setProgress(progress);
}

QString HRVideoComponent::searchPath() const
{
    return d->searchPath;
}

void HRVideoComponent::setSearchPath(const QString &searchPath)
{
    d->searchPath = searchPath;
    Q_EMIT searchPathChanged();
}

bool HRVideoComponent::isScrubbing() const
{
    return d->controller->isScrubbing();
}

void HRVideoComponent::setScrubbing(bool scrubbing)
{
    d->controller->setScrubbing(scrubbing);
    d->apply(scrubbing ? HRClipEvent::scrubbed : HRClipEvent::released);
}

double HRVideoComponent::contentHeight() const
{
    return d->controller->frameHeight();
}

double HRVideoComponent::contentWidth() const
{
    return d->controller->frameWidth();
}

double HRVideoComponent::loadProgress() const
{
    return d->controller->loadProgress();
}

double HRVideoComponent::pictureTime() const
{
    return d->picture.pts();
}

bool HRVideoComponent::isDecoded() const
{
    return d->clip.isDecoded();
}

bool HRVideoComponent::hasFailed() const
{
    return d->failed;
}

bool HRVideoComponent::isFlashing() const
{
    return d->flashing;
}

bool HRVideoComponent::hasEnded() const
{
    return d->clip.isEnded();
}

bool HRVideoComponent::keepsPlaying() const
{
    return d->clip.isWanted();
}

void HRVideoComponent::setKeepPlaying(bool keep)
{
    d->apply(keep ? HRClipEvent::wanted : HRClipEvent::unwanted);
}

bool HRVideoComponent::isLooping() const
{
    return d->clip.isLooping();
}

void HRVideoComponent::setLooping(bool looping)
{
    if (looping == isLooping())
        return;
    d->clip.setLooping(looping);
    Q_EMIT loopChanged();
    d->lookForFlashes();
}

void HRVideoComponent::setDecodingPaused(bool paused)
{
    d->videoSource->setDecodingPaused(paused);
}

void HRVideoComponent::paint(QPainter *painter)
{
    if (d->picture.isNull())
        return;
    painter->setRenderHint(QPainter::SmoothPixmapTransform, antialiasing());
    painter->setTransform(d->toUpright, true);
    painter->drawImage(QPoint(0, 0), d->picture);
}

void HRVideoComponent::frameReady()
{
    // Whoever hears of them may go back, so that what follows fetches another picture.
    d->lookForFlashes();
    // Until the source has taken the new clip, it still answers with the one before.
    HRVideoFrame before;
    const bool isAwaiting = d->awaitedSources > 0;
    const double timeBefore = d->picture.pts();
    if (!d->controller->replaceByCurrentFrame(isAwaiting ? &before : &d->picture) || isAwaiting)
        return;
    placePicture();
    if (d->contentHeightSeen != d->picture.height()) {
        d->contentHeightSeen = d->picture.height();
        Q_EMIT heightChanged();
    }
    const double progress = d->controller->progress();
    if (d->progressSeen != progress) {
        d->progressSeen = progress;
        Q_EMIT progressChanged();
        Q_EMIT positionChanged();
    }
    if (d->picture.pts() != timeBefore)
        Q_EMIT timeChanged();
    d->tellLength();
    update();
    d->apply(HRClipEvent::pictureShown);
}

void HRVideoComponent::play()
{
    d->apply(HRClipEvent::moved);
    d->controller->play();
}

void HRVideoComponent::pause()
{
    d->controller->pause();
    d->apply(HRClipEvent::unwanted);
}

void HRVideoComponent::sourceChangedState()
{
    Q_EMIT stateChanged();
    d->lookForEnd();
}

void HRVideoComponent::rewindToStart()
{
    pause();
    setProgress(0.0);
    Q_EMIT progressChanged();
    Q_EMIT positionChanged();
}

void HRVideoComponent::controllerPositionChanged()
{
    d->progressSeen = d->controller->progress();
    Q_EMIT positionChanged();
    Q_EMIT progressChanged();
}

void HRVideoComponent::itemChange(ItemChange change, const ItemChangeData &value)
{
    if (change == ItemSceneChange) {
        followWindow(value.window);
        d->followVisibility(value.window);
    }
    QQuickPaintedItem::itemChange(change, value);
}

void HRVideoComponent::followWindow(QQuickWindow *window)
{
    const HRClipFinder *finder = HRClipFinder::of(window);
    setDecodingPaused(finder && finder->isDecodingPaused());
}

} // namespace Hintreels
