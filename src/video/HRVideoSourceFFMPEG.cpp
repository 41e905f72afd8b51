// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRVideoSourceFFMPEG.h"

#include "context/printable_p.h"
#include "video/HRCompactFrameCache_p.h"
#include "video/HRSchedule_p.h"
#include "video/HRVideoSourceFFMPEG_p.h"
#include "video/mediaFile_p.h"
#include "video/retiredSources_p.h"

#include <QDebug>

extern "C" {
#include <libavutil/time.h>
}

namespace Hintreels {

namespace {

// What the size is said to be while no media is open.
constexpr double closedWidth = 200.0;
constexpr double closedHeight = 150.0;

constexpr qint64 megapixel = 1'000'000; // pixels
constexpr double microseconds = 1000000.0; // in a second

/// @param failure with %1 for the path
void tell(const QString &failure, const QString &path)
{
    qDebug().noquote() << printable(failure.arg(path));
}

} // namespace

HRVideoSourceFFMPEG::HRVideoSourceFFMPEG(QObject *parent)
    : HRVideoSource(parent)
    , d(new HRVideoSourceFFMPEGPrivate(this))
{
    setObjectName(QStringLiteral("FFMPEG"));
    silenceFFmpeg();
}

HRVideoSourceFFMPEG::~HRVideoSourceFFMPEG()
{
    quit();
}

void HRVideoSourceFFMPEG::close()
{
    releaseMedia();
    HRVideoSource::close();
}

bool HRVideoSourceFFMPEG::isOpen()
{
    return d->currentStatus().open;
}

double HRVideoSourceFFMPEG::getTime()
{
    return double(av_gettime()) / microseconds;
}

void HRVideoSourceFFMPEG::changeSetPosition(size_t index)
{
    {
        const HRMutexLocker lock(d->decoderMutex);
        if (d->clip.isOpen()) {
            const double rate = frameRate();
            const double target = rate > 0.0 ? double(index) / rate : 0.0;
            d->clip.seek(target, d->clock.time() > target);
            d->clock.setTime(target);
        } else {
            d->clock.setTime(0.0);
            d->publishProgress(0.0);
        }
    }
    Q_EMIT positionChanged();
}

double HRVideoSourceFFMPEG::duration()
{
    return d->currentStatus().facts.duration;
}

double HRVideoSourceFFMPEG::timeBase()
{
    return d->currentStatus().facts.timeBase;
}

double HRVideoSourceFFMPEG::frameRate()
{
    return d->currentStatus().facts.frameRate;
}

double HRVideoSourceFFMPEG::frameWidth() const
{
    const HRClipStatus status = d->currentStatus();
    return status.open ? status.facts.size.width() : closedWidth;
}

double HRVideoSourceFFMPEG::frameHeight() const
{
    const HRClipStatus status = d->currentStatus();
    return status.open ? status.facts.size.height() : closedHeight;
}

void HRVideoSourceFFMPEG::setLargestPicture(int megapixels)
{
    d->largestPicture = megapixels;
}

void HRVideoSourceFFMPEG::setColorsByFile(bool byFile)
{
    d->colorsByFile = byFile;
}

bool HRVideoSourceFFMPEG::areColorsByFile() const
{
    return d->colorsByFile;
}

QTransform HRVideoSourceFFMPEG::upright() const
{
    return d->currentStatus().facts.upright;
}

bool HRVideoSourceFFMPEG::isFlashing(bool repeated) const
{
    const HRClipStatus status = d->currentStatus();
    return repeated ? status.flashingRepeated : status.flashing;
}

void HRVideoSourceFFMPEG::setDecodingPaused(bool paused)
{
    d->decodingPaused = paused;
    wake();
}

size_t HRVideoSourceFFMPEG::position()
{
    return 0;
}

double HRVideoSourceFFMPEG::progress()
{
    return d->currentStatus().progress;
}

void HRVideoSourceFFMPEG::run()
{
    const HRSchedule::Work work(this);
    while (!shouldQuit()) {
        processActionQueue();
        switch (action()) {
        case quitAction:
            return;
        case loadAction:
            if (areRetiredSourcesMany())
                rest();
            else
                loadSource();
            break;
        case closeAction:
            close();
            setAction(idleAction);
            break;
        case seekAction:
            seekToStart();
            break;
        case decodeAction:
            if (d->decodingPaused)
                rest();
            else if (!decodeNextPicture())
                setAction(idleAction);
            break;
        case idleAction:
            rest();
            break;
        }
    }
}

bool HRVideoSourceFFMPEG::loadSource()
{
    if (source().isEmpty()) {
        setAction(idleAction);
        close();
        return false;
    }
    d->flashes = HRClipFlashes();
    d->publishFlashes();
    setupSource();
    if (!openMedia()) {
        setAction(idleAction);
        if (!shouldQuit())
            Q_EMIT clipFailed();
        return false;
    }
    const bool loaded = HRVideoSource::loadSource();
    setAction(decodeAction);
    return loaded;
}

void HRVideoSourceFFMPEG::dropClip()
{
    releaseMedia();
    HRVideoSource::dropClip();
}

std::unique_ptr<HRVideoFrameCache> HRVideoSourceFFMPEG::createCache(const QString &name) const
{
    return std::make_unique<HRCompactFrameCache>(name);
}

bool HRVideoSourceFFMPEG::openMedia()
{
    const QString path = source().toLocalFile();
    const HRMutexLocker lock(d->decoderMutex);
    d->release();
    d->path = path;
    d->clip.setColorsByFile(d->colorsByFile);
    const QString failure = d->clip.open(path, d->largestPicture * megapixel);
    if (failure.isNull()) {
        d->publishFacts();
        return true;
    }
    // An opening that was broken off says nothing about the file.
    if (!shouldQuit())
        tell(failure, path);
    return false;
}

void HRVideoSourceFFMPEG::releaseMedia()
{
    const HRMutexLocker lock(d->decoderMutex);
    d->release();
}

bool HRVideoSourceFFMPEG::decodeNextPicture()
{
    HRVideoFrame picture;
    HRFileTime time;
    QString failure;
    QString path;
    {
        const HRMutexLocker lock(d->decoderMutex);
        if (!d->clip.isOpen()) {
            idle();
            return false;
        }
        picture = d->clip.readPicture();
        if (picture.isNull()) {
            failure = d->clip.failure();
            path = d->path;
            d->clip.rewind();
            d->release();
        } else {
            time = d->clip.pictureTime();
            picture.setPts(d->clock.tick(frameRate()));
            d->publishProgress(picture.pts());
        }
    }
    if (!picture.isNull()) {
        takePicture(picture, time);
        return true;
    }
    if (!shouldQuit())
        endClip(failure, path);
    idle();
    return false;
}

void HRVideoSourceFFMPEG::takePicture(const HRVideoFrame &picture, const HRFileTime &time)
{
    d->flashes.add(picture, time, d->period());
    tellFlashes();
    pushFrame(picture, time.start, time.length);
}

void HRVideoSourceFFMPEG::endClip(const QString &failure, const QString &path)
{
    d->flashes.repeat(
        [this](size_t index) { return shouldQuit() ? HRVideoFrame() : getFrame(unsigned(index)); });
    tellFlashes();
    notifyStreamEnded();
    reportEnd(failure, path);
}

void HRVideoSourceFFMPEG::tellFlashes()
{
    if (d->publishFlashes())
        Q_EMIT flashingFound();
}

void HRVideoSourceFFMPEG::reportEnd(const QString &failure, const QString &path)
{
    const bool isEmpty = loadedFrameCount() == 0;
    if (!failure.isNull())
        tell(failure, path);
    else if (isEmpty)
        tell(QStringLiteral("Could not decode any picture in media at: %1"), path);
    if (isEmpty)
        Q_EMIT clipFailed();
}

// Whoever finds nothing to decode asks for it, and so does the loop; actionChanged() tells of each.
void HRVideoSourceFFMPEG::idle()
{
    if (action() != idleAction)
        setAction(idleAction);
}

void HRVideoSourceFFMPEG::seekToStart()
{
    const HRMutexLocker lock(d->decoderMutex);
    if (d->clip.isOpen())
        d->clip.restart();
    else
        setAction(idleAction);
}

} // namespace Hintreels
