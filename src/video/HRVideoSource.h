// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "context/HRExport.h"
#include "video/HRVideoFrame.h"

#include <QThread>
#include <QUrl>

#include <functional>
#include <memory>

namespace Hintreels {

class HRVideoFrameCache;
struct HRVideoSourcePrivate;

/// A thread that fills a cache with the pictures of a clip, as other threads tell it to.
///
/// The base owns the clip's cache, the URL in effect, the thread's action and the queue of changes
/// by which other threads steer it. A derived source supplies run() and what concerns the media.
/// It calls quit() in its own destructor: the base's comes too late for its members.
/// All signals are emitted from the source's thread, with no lock held.
class HINTREELS_EXPORT HRVideoSource : public QThread
{
    Q_OBJECT

public:
    /// What the thread does in each pass of its loop. -1 stands for "no change".
    enum Action : int
    {
        quitAction = 0, ///< leaves its loop and ends
        loadAction = 1, ///< opens the source
        closeAction = 2, ///< closes the media, then idles
        seekAction = 3, ///< repositions the demuxer
        decodeAction = 4, ///< decodes the next picture into the cache
        idleAction = 5 ///< rests until a request comes in
    };

    /// Starts nothing: start() is left to whoever makes the source.
    explicit HRVideoSource(QObject *parent = nullptr);
    /// Quits the thread first.
    ~HRVideoSource() override;

    // Derived sources rely on the order of the virtual operations.

    /// Does nothing here; a derived source releases its media first, then calls this.
    virtual void close();
    /// Whether the media is open.
    virtual bool isOpen() = 0;
    /// Wall-clock time in seconds.
    virtual double getTime() = 0;
    /// Makes @p action the thread's action and emits actionChanged(); -1 changes nothing.
    virtual void changeSetAction(Action action);
    /// @param index picture to go on decoding from
    virtual void changeSetPosition(size_t index) = 0;
    /// Makes @p url the URL in effect, in silence.
    virtual void changeSetSource(const QUrl &url);
    /// In seconds; 0 where it is not known.
    virtual double duration() = 0;
    /// Seconds per tick of the codec; 0 where it is not known.
    virtual double timeBase() = 0;
    /// Pictures per second; 0 where it is not known.
    virtual double frameRate() = 0;
    /// In pixels.
    virtual double frameWidth() const = 0;
    /// In pixels.
    virtual double frameHeight() const = 0;

protected:
    /// Emits sourceLoaded(). A derived source opens its media, then calls this.
    virtual bool loadSource();

public:
    // Requests, from any thread: they return at once, and wake the thread when it rests.

    /// Asks for the clip at @p url.
    /// @return false, with nothing asked for, where @p url is invalid or already in effect; what
    /// was asked for before and is still to come does not count
    bool setSource(const QUrl &url);
    /// Asks for @p action.
    void setAction(Action action);
    /// Asks the thread to end.
    void setShouldQuit();
    /// Asks the thread to end and waits for it, at most 10 s; then terminates it, with a message.
    void quit();

    // Queries, from any thread.

    /// The URL in effect.
    QUrl source();
    /// What the thread does now.
    Action action();
    /// Whether the thread was asked to end.
    bool shouldQuit();

    // Pictures, from any thread, under the frame lock.

    /// Appends a picture to the cache of the current clip.
    void pushFrame(const HRVideoFrame &picture);
    /// The same for a picture of which the file says when it is shown.
    /// @param start in seconds; not a number where the file does not tell
    /// @param length in seconds, as @p start
    void pushFrame(const HRVideoFrame &picture, double start, double length);
    /// The picture at @p index, or a null one where there is none. Its time is that of the source's
    /// clock, or else of setTimedByFile().
    HRVideoFrame getFrame(unsigned int index);
    /// Whether the picture at @p index is decoded.
    bool isFrameAvailable(size_t index);
    /// The number of pictures decoded so far.
    size_t loadedFrameCount();
    /// The same: all pictures that are known of are loaded.
    size_t totalFrameCount();
    /// Whether pictures are shown for the times that the file says, from 0 on, instead of all for
    /// the same. Times that go back, are missing or stand still for more than 10 s count as the
    /// length of a picture at the clip's rate.
    void setTimedByFile(bool timed);
    /// What setTimedByFile() has set.
    bool isTimedByFile();
    /// How long the picture at @p index is shown by the file, in seconds; 0 where pictures are not
    /// timed so, or there is none.
    double shownByFile(size_t index);
    /// How long the pictures that are decoded so far are shown, in seconds; 0 where they are not
    /// timed by the file and their rate is not known.
    double clipLength();
    /// The index of the picture that is shown @p seconds after the first one; at most the last.
    size_t indexAt(double seconds);
    /// Has @p tell called at the first picture of each clip, on the source's thread and with no
    /// lock held; in place of what was to be called before.
    void onFirstPicture(std::function<void()> tell);

    // For the source's own thread.

    /// Drops all changes that were asked for and not yet applied.
    void clearChanges();
    /// Starts a fresh cache for the source in effect, asks for decodeAction (for idleAction where
    /// the source is empty) and emits sourceChanged().
    void setupSource();
    /// Emits streamEnded().
    void notifyStreamEnded();
    /// Frees all that is known of the clip. The thread's last act.
    virtual void dropClip();

Q_SIGNALS:
    // Listeners rely on this order.
    void frameReady(); ///< for derived sources; none of the library's emits it
    /// Another URL is in effect, with a fresh cache.
    void sourceChanged();
    void streamEnded(); ///< the whole clip is in the cache
    void sourceLoaded(); ///< the media is open; its sizes and rates are known
    /// The thread's action was set.
    void actionChanged();
    /// Decoding goes on from another picture.
    void positionChanged();
    void loadProgressChanged(); ///< for derived sources; none of the library's emits it

protected:
    /// Applies the oldest change that was asked for, if any.
    void processActionQueue();
    /// Returns as soon as a change or an end is asked for, after 100 ms at the latest; at once
    /// while changes are pending.
    void rest();
    /// Ends the present or the next rest. From any thread.
    void wake();

private:
    /// The cache for a clip, called @p name.
    virtual std::unique_ptr<HRVideoFrameCache> createCache(const QString &name) const;

    std::unique_ptr<HRVideoSourcePrivate> d;
};

/// A change of a source's action that was asked for, on its way to the source's thread.
struct HINTREELS_EXPORT HRVideoSourceChange
{
    /// Asks for @p action.
    explicit HRVideoSourceChange(HRVideoSource::Action action);
    virtual ~HRVideoSourceChange();

    /// 1 for a change of the action, 3 for one of the source as well.
    virtual int type() const;
    /// Carries the change out. On the source's thread, with no lock held.
    virtual void apply(HRVideoSource *source);

    /// What is asked for.
    HRVideoSource::Action action;
};

/// A change of a source's URL, which is loaded then.
struct HINTREELS_EXPORT HRVideoSourceSourceChange : public HRVideoSourceChange
{
    /// Asks for the clip at @p url.
    explicit HRVideoSourceSourceChange(const QUrl &url);

    int type() const override;
    void apply(HRVideoSource *source) override;

    /// The clip that is asked for.
    QUrl url;
};

} // namespace Hintreels
