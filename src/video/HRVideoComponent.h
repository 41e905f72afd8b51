// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "context/HRExport.h"
#include "video/HRVideoFrame.h"

#include <QQuickPaintedItem>

namespace Hintreels {

class HRVideoController;
class HRVideoSourceFFMPEG;

/// The QML item that plays a clip of the package, at the clip's own size.
///
/// The clip is found by the HRView that shows the item, so a source set before the item is in its
/// window has no effect: set it when the window is there. The item's implicit size is that of the
/// picture it got last. Each item has two threads of its own, which idle until a source is set;
/// destroying the item stops them, but waits for no picture that takes long. GUI thread only.
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

    VideoState state() const;
    void setState(VideoState state);

    /// Index of the picture to show.
    qint64 position() const;
    void setPosition(qint64 position);
    /// The position as a fraction of the decoded pictures.
    double progress() const;
    void setProgress(double progress);

    /// Kept for the UI's own use; it plays no part in finding the source.
    QString searchPath() const;
    void setSearchPath(const QString &searchPath);

    /// While scrubbing, the end of decoding does not pause.
    bool isScrubbing() const;
    void setScrubbing(bool scrubbing);

    /// In pixels, of the clip that is being decoded; 200 x 150 before and after that.
    double contentHeight() const;
    double contentWidth() const;
    /// 1 as soon as a picture is decoded, else 0.
    double loadProgress() const;

    /// The time of the painted picture in seconds, 0 where there is none. The clock starts with the
    /// item's first clip and runs on from clip to clip. Nothing tells of a change by itself: while
    /// the clip plays, positionChanged() follows each picture.
    Q_INVOKABLE double pictureTime() const { return m_frame.pts(); }

    /// Leaves the clip's further pictures undecoded until it is called with false; what is decoded
    /// already plays. The view does so while the popup around it is hidden.
    void setDecodingPaused(bool paused);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    // Listeners rely on this order.
    void sourceChanged();
    void stateChanged();
    void positionChanged();
    void progressChanged();
    void heightChanged(); ///< a picture of another height came
    void searchPathChanged();
    void scrubbingChanged();
    void contentHeightChanged();
    void contentWidthChanged();
    void loadProgressChanged();

public Q_SLOTS:
    void frameReady();
    void play();
    void pause();
    void sourceChangedState();
    /// Pauses at the first picture.
    void rewindToStart();
    void controllerPositionChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData &value) override;

private:
    void followWindow(QQuickWindow *window);
    void sourceTaken();

    HRVideoSourceFFMPEG *m_videoSource;
    HRVideoController *m_controller;
    HRVideoFrame m_frame;
    double m_contentHeightSeen = 0.0;
    double m_progressSeen = 0.0;
    QString m_searchPath;
    QString m_source;
    // Clips that were asked for and have not replaced the one before yet, whose pictures are not
    // to be shown any more.
    int m_awaitedSources = 0;
};

} // namespace Hintreels
