// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "context/HRExport.h"

#include <QQuickPaintedItem>

#include <memory>

namespace Hintreels {

struct HRVideoComponentPrivate;

/// The QML item that plays a clip of the package, at the clip's own size.
///
/// The clip is found by the HRView that shows the item, so a source set before the item is in its
/// window has no effect: set it when the window is there. The item's implicit size is that of the
/// picture it got last, as it is painted. Each item has two threads of its own, which idle until a
/// source is set; destroying the item stops them, but waits for no picture that takes long. GUI
/// thread only.
///
/// The item's state and heightChanged() hide those of QQuickItem: use no QML states on it.
class HINTREELS_EXPORT HRVideoComponent : public QQuickPaintedItem
{
    Q_OBJECT
    ///@{
    /// What QML reads and writes; the operations behind it say more.
    Q_PROPERTY(QString source READ source WRITE setSource NOTIFY sourceChanged)
    Q_PROPERTY(VideoState state READ state WRITE setState NOTIFY stateChanged)
    Q_PROPERTY(qint64 position READ position WRITE setPosition NOTIFY positionChanged)
    Q_PROPERTY(double progress READ progress WRITE setProgress NOTIFY progressChanged)
    Q_PROPERTY(QString searchPath READ searchPath WRITE setSearchPath NOTIFY searchPathChanged)
    Q_PROPERTY(bool scrubbing READ isScrubbing WRITE setScrubbing NOTIFY scrubbingChanged)
    Q_PROPERTY(double contentHeight READ contentHeight NOTIFY contentHeightChanged)
    Q_PROPERTY(double contentWidth READ contentWidth NOTIFY contentWidthChanged)
    Q_PROPERTY(double loadProgress READ loadProgress NOTIFY loadProgressChanged)
    Q_PROPERTY(double time READ pictureTime NOTIFY timeChanged)
    Q_PROPERTY(bool decoded READ isDecoded NOTIFY decodedChanged)
    Q_PROPERTY(bool ended READ hasEnded NOTIFY endedChanged)
    Q_PROPERTY(bool keepPlaying READ keepsPlaying WRITE setKeepPlaying NOTIFY keepPlayingChanged)
    Q_PROPERTY(bool loop READ isLooping WRITE setLooping NOTIFY loopChanged)
    Q_PROPERTY(double length READ length NOTIFY lengthChanged)
    Q_PROPERTY(QString timing READ timing WRITE setTiming NOTIFY timingChanged)
    Q_PROPERTY(QString colors READ colors WRITE setColors NOTIFY colorsChanged)
    Q_PROPERTY(bool upright READ isUpright WRITE setUpright NOTIFY uprightChanged)
    Q_PROPERTY(bool failed READ hasFailed NOTIFY failedChanged)
    Q_PROPERTY(bool flashing READ isFlashing NOTIFY flashingChanged)

    ///@}
public:
    /// QML does not resolve enumerators that begin with a small letter: use the numbers there. It
    /// may set any number; others than these do nothing.
    enum VideoState : int
    {
        resetState = 0, ///< setting it does what the end of decoding does; never read
        pausedState = 1,
        playingState = 2
    };
    Q_ENUM(VideoState)

    /// Starts both threads.
    explicit HRVideoComponent(QQuickItem *parent = nullptr);
    /// Stops both threads. A source that is amid a large picture ends by itself.
    ~HRVideoComponent() override;

    /// The clip as it was set, relative to the package's resources.
    QString source() const;
    /// Opens the clip, paused at its first picture. Where the view finds no such file, the clip
    /// in effect goes on, but its picture is no longer painted. Emits nothing.
    void setSource(const QString &source);

    /// Whether the clip plays.
    VideoState state() const;
    /// Does what play(), pause() or the end of decoding does.
    void setState(VideoState state);

    /// Index of the picture to show.
    qint64 position() const;
    /// Goes to a picture; at most to the last one that is decoded.
    void setPosition(qint64 position);
    /// The position as a fraction of the decoded pictures.
    double progress() const;
    /// Goes to a fraction of the decoded pictures.
    void setProgress(double progress);

    /// Kept for the UI's own use; it plays no part in finding the source.
    QString searchPath() const;
    /// Sets it, and tells of that.
    void setSearchPath(const QString &searchPath);

    /// While scrubbing, the end of decoding does not pause.
    bool isScrubbing() const;
    /// Begins or ends scrubbing. Emits nothing.
    void setScrubbing(bool scrubbing);

    /// In pixels, of the clip that is being decoded; 150 before and after that.
    double contentHeight() const;
    /// In pixels, of the clip that is being decoded; 200 before and after that.
    double contentWidth() const;
    /// 1 as soon as a picture is decoded, else 0.
    double loadProgress() const;

    /// The time of the painted picture in seconds, 0 where there is none. The clock starts with the
    /// item's first clip and runs on from clip to clip; that of the file starts with each clip.
    Q_INVOKABLE double pictureTime() const;
    /// How long the pictures that are decoded so far are shown, in seconds: with all of them, how
    /// long the clip is.
    double length() const;
    /// The position of the picture that is shown @p seconds after the clip's first.
    Q_INVOKABLE qint64 positionAt(double seconds) const;

    /// "constant", the default, or "file".
    QString timing() const;
    /// With "constant" all pictures are shown for the same time, at the clip's rate; with "file"
    /// each for the time that the file says. Times that go back, are missing or stand still for
    /// more than 10 s count as one period of the rate. Any other value leaves it as it is.
    void setTiming(const QString &timing);

    /// "described", the default, or "file".
    QString colors() const;
    /// With "described" all pictures are converted by the scaler's own matrix, that of BT.601; with
    /// "file" by the matrix and the range that the picture names, as far as it names them. Counts
    /// for clips that are set from then on. Any other value leaves it as it is.
    void setColors(const QString &colors);

    /// Whether pictures are painted as the file says that they are to be seen.
    bool isUpright() const;
    /// Paints pictures turned by quarters, mirrored and with square pixels where the file says so,
    /// and has that size for its implicit one; or else as they are coded, which is the default.
    void setUpright(bool upright);

    /// Whether all pictures of the clip are there.
    bool isDecoded() const;
    /// Whether the clip that was set last cannot be opened, or has no picture that can be decoded.
    bool hasFailed() const;
    /// Whether the clip that was set last is known to flash more than three times in any one
    /// second, by WCAG 2.2 (2.3.1): played once, or over and over where it loops. Known before the
    /// picture that tells is shown, and for good once all are decoded.
    bool isFlashing() const;
    /// Whether the clip rests where playing has come to its end. No longer once it is played, moved
    /// or set again.
    bool hasEnded() const;

    /// While set, the clip plays whenever it can, and waits for the decoder where it has caught up
    /// with it: not before its first picture is shown, nor in a window that is hidden, nor while
    /// scrubbing. At the end, and by pause(), it becomes false. Set again there, it starts over.
    bool keepsPlaying() const;
    /// Plays whenever that is possible, or pauses.
    void setKeepPlaying(bool keep);
    /// With keepPlaying, the clip starts over at its end.
    bool isLooping() const;
    /// Decides what comes at the next end.
    void setLooping(bool looping);

    /// Leaves the clip's further pictures undecoded until it is called with false; what is decoded
    /// already plays. The view does so while the popup around it is hidden.
    void setDecodingPaused(bool paused);

    /// Draws the picture at its own size, upright where that is wanted, from the item's top left
    /// corner.
    void paint(QPainter *painter) override;
    /// Draws the picture that is shown @p seconds after the clip's first, as it is to be seen, in a
    /// size of @p room; nothing where it is not decoded.
    void paintStill(QPainter *painter, double seconds, const QSizeF &room) const;

Q_SIGNALS:
    // Listeners rely on this order.
    void sourceChanged(); ///< never emitted
    void stateChanged(); ///< the clip plays, or is paused
    void positionChanged(); ///< another picture is to be shown
    void progressChanged(); ///< the same, or more pictures are decoded
    void heightChanged(); ///< a picture of another height came
    void searchPathChanged(); ///< it was set
    void scrubbingChanged(); ///< never emitted
    void contentHeightChanged(); ///< a clip was opened
    void contentWidthChanged(); ///< a clip was opened
    void loadProgressChanged(); ///< a clip was set, opened or decoded
    void timeChanged(); ///< another picture is painted, or none
    void decodedChanged(); ///< the last picture is decoded, or another clip was set
    void endedChanged(); ///< the clip has come to its end, or has left it
    void keepPlayingChanged(); ///< it was set, or the clip has ended or was paused
    void loopChanged(); ///< it was set
    /// The clip has been played to its end, and its last picture is shown; when looping, the first
    /// follows.
    void finished();
    void lengthChanged(); ///< more of the clip is known, or another clip was set
    void timingChanged(); ///< it was set to another value
    void colorsChanged(); ///< it was set to another value
    void uprightChanged(); ///< it was set to another value
    void failedChanged(); ///< the clip has failed, or another one was set
    void flashingChanged(); ///< the clip flashes, or another one was set

public Q_SLOTS:
    /// Fetches the picture that is due.
    void frameReady();
    /// Plays what is decoded, from the start where the position is at the end.
    void play();
    /// Holds at the picture on show.
    void pause();
    /// Tells that the clip plays, or is paused.
    void sourceChangedState();
    /// Pauses at the first picture.
    void rewindToStart();
    /// Tells that the position has changed.
    void controllerPositionChanged();

protected:
    /// Follows the item into its window.
    void itemChange(ItemChange change, const ItemChangeData &value) override;

private:
    void followWindow(QQuickWindow *window);
    void placePicture();

    std::unique_ptr<HRVideoComponentPrivate> d;
};

} // namespace Hintreels
