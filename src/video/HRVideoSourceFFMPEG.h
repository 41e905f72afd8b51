// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "video/HRVideoSource.h"

#include <QTransform>

#include <memory>

namespace Hintreels {

struct HRFileTime;
struct HRVideoSourceFFMPEGPrivate;

/// Decodes the first video stream of a local file with FFmpeg, as fast as it can, into the cache.
///
/// Pictures are 32-bit RGB of the size that the clip had when it was opened. Only a regular file
/// is opened, and nothing that it names: neither playlists nor the network. A file that cannot be
/// played leaves one line in the debug output, and the thread idles.
/// The media is closed as soon as the last picture is decoded.
class HINTREELS_EXPORT HRVideoSourceFFMPEG : public HRVideoSource
{
    Q_OBJECT

public:
    /// Silences FFmpeg's own log, once per process.
    explicit HRVideoSourceFFMPEG(QObject *parent = nullptr);
    /// Quits the thread, then frees the media.
    ~HRVideoSourceFFMPEG() override;

    void close() override;
    /// True while the media is open, which it is no longer when all of it is decoded.
    bool isOpen() override;
    double getTime() override;
    void changeSetPosition(size_t index) override;
    double duration() override;
    double timeBase() override;
    double frameRate() override;
    /// In pixels; 200 while no media is open. Never waits for a picture being decoded.
    double frameWidth() const override;
    /// In pixels; 150 while no media is open. Never waits for a picture being decoded.
    double frameHeight() const override;

    /// The limit of setLargestPicture() where none was set.
    static constexpr int standardLargestPicture = 64; // megapixels
    /// Clips that are opened from now on are refused, or end, where a picture has more than this.
    /// From any thread.
    void setLargestPicture(int megapixels);

    /// Clips that are opened from now on are shown in the colour matrix and range that their
    /// pictures name, instead of the scaler's own; what a picture does not name stays the scaler's.
    /// From any thread.
    void setColorsByFile(bool byFile);
    /// What setColorsByFile() has set.
    bool areColorsByFile() const;

    /// What takes the pictures of the clip opened last to how the file says that they are to be
    /// seen: turned by quarters, mirrored, and with pixels made square.
    QTransform upright() const;

    /// Whether the clip that was loaded last flashes more than three times in any one second, by
    /// WCAG 2.2 (2.3.1), as far as it is decoded.
    /// @param repeated where it starts over at its end; known when all of it is decoded
    bool isFlashing(bool repeated) const;

    /// While paused, requests are carried out and clips are opened, but no picture is decoded. From
    /// any thread; a picture that is being decoded still comes.
    void setDecodingPaused(bool paused);

    /// Always 0.
    virtual size_t position();
    /// How far decoding is, from 0 to 1 by the clip's duration; 0 where that is not known.
    virtual double progress();

    void dropClip() override;

Q_SIGNALS:
    /// The clip that was loaded last cannot be opened, or has ended without a picture.
    void clipFailed();
    /// More is known of isFlashing(); comes before the picture that tells.
    void flashingFound();

protected:
    /// Carries out what is asked for, until it is to end.
    void run() override;
    bool loadSource() override;

private:
    std::unique_ptr<HRVideoFrameCache> createCache(const QString &name) const override;
    bool openMedia();
    void releaseMedia();
    bool decodeNextPicture();
    void idle();
    void seekToStart();
    void takePicture(const HRVideoFrame &picture, const HRFileTime &time);
    void endClip(const QString &failure, const QString &path);
    void tellFlashes();
    void reportEnd(const QString &failure, const QString &path);

    std::unique_ptr<HRVideoSourceFFMPEGPrivate> d;
};

} // namespace Hintreels
