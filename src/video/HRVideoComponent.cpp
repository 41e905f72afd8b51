// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRVideoComponent.h"

#include "video/HRClipFinder_p.h"
#include "video/HRVideoController.h"
#include "video/HRVideoSourceFFMPEG.h"
#include "video/retiredSources_p.h"

#include <QPainter>
#include <QUrl>

namespace Hintreels {

HRVideoComponent::HRVideoComponent(QQuickItem *parent)
    : QQuickPaintedItem(parent)
    , m_videoSource(new HRVideoSourceFFMPEG(this))
    , m_controller(new HRVideoController(m_videoSource, this))
{
    connect(m_controller, &HRVideoController::displayFrame, this, &HRVideoComponent::frameReady);
    setFlag(ItemHasContents, true);
    connect(m_controller, &HRVideoController::stateChanged, this,
        &HRVideoComponent::sourceChangedState);
    connect(m_controller, &HRVideoController::positionChanged, this,
        &HRVideoComponent::controllerPositionChanged);
    connect(m_controller, &HRVideoController::heightChanged, this,
        &HRVideoComponent::contentHeightChanged);
    connect(m_controller, &HRVideoController::widthChanged, this,
        &HRVideoComponent::contentWidthChanged);
    connect(m_controller, &HRVideoController::loadProgressChanged, this,
        &HRVideoComponent::loadProgressChanged);
    connect(m_videoSource, &HRVideoSource::sourceChanged, this, &HRVideoComponent::sourceTaken);
    followWindow(window()); // the base has put the item there before it was one of this class
    m_controller->start(QThread::InheritPriority);
    m_videoSource->start(QThread::InheritPriority);
}

HRVideoComponent::~HRVideoComponent()
{
    // The controller reads what the source has.
    m_controller->quit();
    m_controller->wait();
    retireSource(std::unique_ptr<HRVideoSource>(m_videoSource));
}

QString HRVideoComponent::source() const
{
    return m_source;
}

void HRVideoComponent::setSource(const QString &source)
{
    if (source.isEmpty()) {
        m_controller->setSource(QUrl(source));
        m_source = source;
    }
    HRClipFinder *finder = HRClipFinder::of(window());
    if (!finder)
        return;
    m_source = source;
    m_videoSource->setLargestPicture(finder->largestPicture());
    const QString path = finder->findClip(source);
    if (!path.isEmpty() && m_controller->setSource(QUrl::fromLocalFile(path)))
        ++m_awaitedSources;
    m_frame = HRVideoFrame();
    update();
}

HRVideoComponent::VideoState HRVideoComponent::state() const
{
    return m_controller->state() == HRVideoController::controllerPlaying ? playingState
                                                                         : pausedState;
}

void HRVideoComponent::setState(VideoState state)
{
    switch (state) {
    case playingState:
        m_controller->play();
        break;
    case pausedState:
        m_controller->pause();
        break;
    case resetState:
        m_controller->streamEnded();
        break;
    }
}

qint64 HRVideoComponent::position() const
{
    return qint64(m_controller->position());
}

void HRVideoComponent::setPosition(qint64 position)
{
    m_controller->setPosition(size_t(position));
}

double HRVideoComponent::progress() const
{
    return m_controller->progress();
}

void HRVideoComponent::setProgress(double progress)
{
    m_controller->setProgress(progress);
}

QString HRVideoComponent::searchPath() const
{
    return m_searchPath;
}

void HRVideoComponent::setSearchPath(const QString &searchPath)
{
    m_searchPath = searchPath;
    Q_EMIT searchPathChanged();
}

bool HRVideoComponent::isScrubbing() const
{
    return m_controller->isScrubbing();
}

void HRVideoComponent::setScrubbing(bool scrubbing)
{
    m_controller->setScrubbing(scrubbing);
}

double HRVideoComponent::contentHeight() const
{
    return m_controller->frameHeight();
}

double HRVideoComponent::contentWidth() const
{
    return m_controller->frameWidth();
}

double HRVideoComponent::loadProgress() const
{
    return m_controller->loadProgress();
}

void HRVideoComponent::setDecodingPaused(bool paused)
{
    m_videoSource->setDecodingPaused(paused);
}

void HRVideoComponent::paint(QPainter *painter)
{
    if (m_frame.isNull())
        return;
    painter->setRenderHint(QPainter::SmoothPixmapTransform, antialiasing());
    painter->drawImage(QPoint(0, 0), m_frame);
}

void HRVideoComponent::frameReady()
{
    // Until the source has taken the new clip, it still answers with the one before.
    HRVideoFrame before;
    const bool isAwaiting = m_awaitedSources > 0;
    if (!m_controller->replaceByCurrentFrame(isAwaiting ? &before : &m_frame) || isAwaiting)
        return;
    setImplicitSize(m_frame.width(), m_frame.height());
    if (m_contentHeightSeen != m_frame.height()) {
        m_contentHeightSeen = m_frame.height();
        Q_EMIT heightChanged();
    }
    const double progress = m_controller->progress();
    if (m_progressSeen != progress) {
        m_progressSeen = progress;
        Q_EMIT progressChanged();
        Q_EMIT positionChanged();
    }
    update();
}

void HRVideoComponent::play()
{
    m_controller->play();
}

void HRVideoComponent::pause()
{
    m_controller->pause();
}

void HRVideoComponent::sourceChangedState()
{
    Q_EMIT stateChanged();
}

void HRVideoComponent::rewindToStart()
{
    m_controller->pause();
    m_controller->setProgress(0.0);
    Q_EMIT progressChanged();
    Q_EMIT positionChanged();
}

void HRVideoComponent::controllerPositionChanged()
{
    m_progressSeen = m_controller->progress();
    Q_EMIT positionChanged();
    Q_EMIT progressChanged();
}

void HRVideoComponent::itemChange(ItemChange change, const ItemChangeData &value)
{
    if (change == ItemSceneChange)
        followWindow(value.window);
    QQuickPaintedItem::itemChange(change, value);
}

void HRVideoComponent::followWindow(QQuickWindow *window)
{
    const HRClipFinder *finder = HRClipFinder::of(window);
    setDecodingPaused(finder && finder->isDecodingPaused());
}

void HRVideoComponent::sourceTaken()
{
    if (m_awaitedSources > 0)
        --m_awaitedSources;
}

} // namespace Hintreels
