// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRVideoComponent_p.h"

#include <QQuickWindow>

namespace Hintreels {

HRVideoComponentPrivate::HRVideoComponentPrivate(HRVideoComponent *item)
    : q(item)
    , videoSource(new HRVideoSourceFFMPEG(item))
    , controller(new HRVideoController(videoSource, item))
{
}

void HRVideoComponentPrivate::apply(HRClipEvent event)
{
    const HRClipState before = clip;
    const HRClipState::Action action = clip.apply(event);
    // Whoever hears of what follows may change the clip again.
    const HRClipState after = clip;
    // Before it plays, or else it would start over where it has caught up.
    if (before.awaitsDecoder() != after.awaitsDecoder())
        controller->setAwaitsDecoder(after.awaitsDecoder());
    obey(action);
    announce(before, after);
}

/// The controller pauses behind the last picture, be it that of the whole clip or not.
void HRVideoComponentPrivate::lookForEnd()
{
    const size_t count = controller->frameCount();
    if (awaitedSources == 0 && !isPlaying() && count > 0 && controller->position() == count)
        apply(HRClipEvent::endReached);
}

void HRVideoComponentPrivate::open(const QUrl &url)
{
    const bool isAnother = controller->setSource(url);
    if (isAnother) {
        ++awaitedSources;
        setFailed(false);
        setFlashing(false);
    }
    apply(isAnother ? HRClipEvent::opened : HRClipEvent::rewound);
}

void HRVideoComponentPrivate::sourceTaken()
{
    if (awaitedSources > 0)
        --awaitedSources;
}

void HRVideoComponentPrivate::decodingEnded()
{
    if (awaitedSources > 0)
        return; // that of the clip before
    tellLength();
    apply(HRClipEvent::decoded);
    lookForEnd();
}

void HRVideoComponentPrivate::clipFailed()
{
    if (awaitedSources == 0) // else it is the clip before
        setFailed(true);
}

void HRVideoComponentPrivate::setFailed(bool hasFailed)
{
    if (failed == hasFailed)
        return;
    failed = hasFailed;
    Q_EMIT q->failedChanged();
}

void HRVideoComponentPrivate::lookForFlashes()
{
    if (awaitedSources == 0) // else it is the clip before
        setFlashing(videoSource->isFlashing(clip.isLooping()));
}

void HRVideoComponentPrivate::setFlashing(bool flashes)
{
    if (flashing == flashes)
        return;
    flashing = flashes;
    Q_EMIT q->flashingChanged();
}

void HRVideoComponentPrivate::dropPicture()
{
    const bool isTimeKnown = picture.pts() != 0.0;
    picture = HRVideoFrame();
    if (isTimeKnown)
        Q_EMIT q->timeChanged();
    tellLength();
    q->update();
}

void HRVideoComponentPrivate::followVisibility(QQuickWindow *window)
{
    QObject::disconnect(visibility);
    const auto follow
        = [this](bool visible) { apply(visible ? HRClipEvent::seen : HRClipEvent::hidden); };
    if (window)
        visibility = QObject::connect(window, &QWindow::visibleChanged, q, follow);
    follow(window && window->isVisible());
}

void HRVideoComponentPrivate::obey(HRClipState::Action action)
{
    if (action == HRClipState::play && !isPlaying())
        controller->play();
    if (action == HRClipState::pause && isPlaying())
        controller->pause();
}

void HRVideoComponentPrivate::announce(const HRClipState &before, const HRClipState &after)
{
    const bool hasFinished = before.rounds() != after.rounds();
    if (hasFinished && !after.plays())
        showLastPicture();
    if (before.isDecoded() != after.isDecoded())
        Q_EMIT q->decodedChanged();
    if (before.isWanted() != after.isWanted())
        Q_EMIT q->keepPlayingChanged();
    if (before.isEnded() != after.isEnded())
        Q_EMIT q->endedChanged();
    if (hasFinished)
        Q_EMIT q->finished();
}

/// Playing is a step ahead of what is painted, and passes over what it is too late for.
void HRVideoComponentPrivate::showLastPicture()
{
    const double timeBefore = picture.pts();
    if (!controller->replaceByFrame(controller->frameCount() - 1, &picture))
        return;
    if (picture.pts() != timeBefore)
        Q_EMIT q->timeChanged();
    q->update();
}

void HRVideoComponentPrivate::tellLength()
{
    const double length = q->length();
    if (lengthSeen == length)
        return;
    lengthSeen = length;
    Q_EMIT q->lengthChanged();
}

} // namespace Hintreels
