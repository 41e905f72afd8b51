// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "context/HRExport.h"
#include "video/HRVideoFrame.h"

#include <QDateTime>
#include <QThread>
#include <QUrl>

#include <memory>

namespace Hintreels {

class HRVideoSource;
struct HRVideoControllerPrivate;

/// A thread that plays a clip out of its source's cache at the clip's own rate.
///
/// It keeps the index of the picture to show, moves it on in time, and says by displayFrame() that
/// another picture is due; who shows it fetches it by currentFrame(). Playing, pausing, rewinding
/// and scrubbing are moves of this index. Playing ends where the decoded pictures end: a clip that
/// is played while it is still being decoded pauses when it has caught up with the decoder, and
/// again when decoding has ended.
///
/// The controller deletes itself when its thread has finished, so one that is started never stands
/// on the stack. Operations may be called from any thread; signals come from the controller's.
class HINTREELS_EXPORT HRVideoController : public QThread
{
    Q_OBJECT

public:
    /// Whether the position moves on by itself.
    enum State
    {
        controllerPaused = 0, ///< it does not
        controllerPlaying = 1 ///< it does, as far as pictures are decoded
    };

    /// @param source not owned; outlives the controller's thread, and may be null
    explicit HRVideoController(HRVideoSource *source, QObject *parent = nullptr);
    /// Asks the thread to end and does not wait: whoever destroys a started controller quits first.
    ~HRVideoController() override;

    /// Plays on, from the start where the position is at the end.
    void play();
    /// Holds at the position.
    void pause();
    /// Sets the state as it is, wherever the position may be.
    void setState(State state);
    /// What was set last, or came of the clip's end.
    State state() const;

    /// Goes to picture @p index, at most to the last one that is decoded.
    /// On an empty cache the position becomes the largest number and nothing is shown until it is
    /// set anew: wait for the source to be loaded.
    void setPosition(size_t index);
    /// Index of the picture to show.
    size_t position() const;
    /// Goes to a fraction of the decoded pictures. What is below 0 or not a number counts as 0.
    void setProgress(double progress);
    /// The position as a fraction of the decoded pictures; 0 where there are none.
    double progress() const;
    /// 1 as soon as a picture is decoded, else 0.
    double loadProgress() const;

    /// While scrubbing, the end of decoding does not pause.
    void setScrubbing(bool scrubbing);
    /// What setScrubbing() has set.
    bool isScrubbing() const;
    /// While set, playing waits for more pictures where it has caught up with the decoder, and the
    /// end of decoding does not pause.
    void setAwaitsDecoder(bool awaits);
    /// Asks for the picture at the position to be shown while paused.
    void setNeedFrame(bool needFrame);

    /// When the position last moved on.
    QDateTime lastFrameDisplayTime() const;
    /// Sets it in place of what has been measured.
    void setLastFrameDisplayTime(const QDateTime &time);

    /// The number of pictures decoded so far.
    size_t frameCount() const;
    /// The picture at the position, which from now on counts as shown.
    HRVideoFrame currentFrame();
    /// Puts the current picture, which from now on counts as shown, in place of @p picture. That is
    /// let go first, so that the cache can make the new picture out of it.
    /// @return false where there is none, and @p picture stays; false, too, without memory for it
    bool replaceByCurrentFrame(HRVideoFrame *picture);
    /// The same for picture @p index, which does not count as shown.
    bool replaceByFrame(size_t index, HRVideoFrame *picture);
    /// The picture at @p index, or a null one where there is none.
    HRVideoFrame getFrame(size_t index);

    /// The URL that the source has in effect.
    QUrl source() const;
    /// Pauses, rewinds, and asks the source for the clip at @p url.
    /// @return what the source answers; on false the clip in effect stays
    bool setSource(const QUrl &url);
    /// Closes the source's media.
    void close();

    /// In pixels, of the clip that is open.
    double frameWidth() const;
    /// In pixels, of the clip that is open.
    double frameHeight() const;

    /// Asks the thread to end.
    void setShouldQuit();
    /// Whether the thread was asked to end.
    /// False, too, where the lock cannot be had within 100 ms.
    bool shouldQuit() const;
    /// Asks the thread to end and waits for it, at most 10 s; then terminates it, with a message.
    void quit();

Q_SIGNALS:
    // Listeners rely on this order.
    void displayFrame(); ///< another picture is due: fetch currentFrame()
    void stateChanged(); ///< playing or paused
    void positionChanged(); ///< by hand, or while playing
    void widthChanged(); ///< a clip was opened
    void heightChanged(); ///< a clip was opened
    void loadProgressChanged(); ///< a clip was set, opened or decoded

public Q_SLOTS:
    /// The source has decoded the whole clip: pauses, unless scrubbing.
    void streamEnded();
    /// The source has opened a clip.
    void sourceLoaded();

protected:
    /// Tells of each picture at its time, until it is to end.
    void run() override;

private:
    void presentPicture();

    std::unique_ptr<HRVideoControllerPrivate> d;
};

} // namespace Hintreels
