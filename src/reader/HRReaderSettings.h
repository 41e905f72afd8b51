// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "context/HRExport.h"

#include <QObject>

#include <memory>

QT_BEGIN_NAMESPACE
class QSettings;
QT_END_NAMESPACE

namespace Hintreels {

struct HRReaderSettingsPrivate;

/// What the reader of hints decides: whether, when and for how long they show, and how.
///
/// The library follows the object under readerSettingsKey at once, also in hints that show. It
/// never turns on what the host has turned off: without hints (disabledKey) or motion
/// (reducedMotionKey) there are none, and modifiers that the host requires (modifierKey) have to be
/// held, too.
///
/// Values are kept by QSettings in the group "Hintreels" as soon as they are set. One that is out
/// of range becomes the nearest that is not. GUI thread only.
class HINTREELS_EXPORT HRReaderSettings : public QObject
{
    Q_OBJECT
    ///@{
    /// What the reader decides; the operations behind it say more.
    Q_PROPERTY(bool hintsShown READ areHintsShown WRITE setHintsShown NOTIFY changed)
    Q_PROPERTY(Detail detail READ detail WRITE setDetail NOTIFY changed)
    Q_PROPERTY(Occasion occasion READ occasion WRITE setOccasion NOTIFY changed)
    Q_PROPERTY(int delay READ delay WRITE setDelay NOTIFY changed)
    Q_PROPERTY(int duration READ duration WRITE setDuration NOTIFY changed)
    Q_PROPERTY(Clips clips READ clips WRITE setClips NOTIFY changed)
    Q_PROPERTY(int textSize READ textSize WRITE setTextSize NOTIFY changed)
    Q_PROPERTY(bool captionsShown READ areCaptionsShown WRITE setCaptionsShown NOTIFY changed)
    Q_PROPERTY(bool startsSmall READ startsSmall WRITE setStartsSmall NOTIFY changed)
    Q_PROPERTY(int seenLimit READ seenLimit WRITE setSeenLimit NOTIFY changed)
    ///@}

public:
    /// How much of a hint the standard UI shows.
    enum Detail : int
    {
        fullDetail = 0, ///< all of it
        textDetail = 1, ///< no pictures and no clips
        summaryDetail = 2 ///< title, shortcut and summary
    };
    Q_ENUM(Detail)

    /// When a hint shows; HRWidgetsInterface follows it.
    enum Occasion : int
    {
        occasionHover = 0, ///< the pointer rests on what it belongs to
        occasionModifier = 1, ///< the same, while Ctrl is held
        occasionKey = 2 ///< the reader asks for it by a key; the pointer shows none
    };
    Q_ENUM(Occasion)

    /// How the standard UI plays clips. Where motion is reduced it is always on request.
    enum Clips : int
    {
        clipsByThemselves = 0, ///< as their hint says: once, or again and again
        clipsOnce = 1, ///< to their end, and not again
        clipsOnRequest = 2 ///< when the reader presses play
    };
    Q_ENUM(Clips)

    /// Reads what the host's own QSettings hold. As for any QSettings, the application should have
    /// its organisation's name by then.
    explicit HRReaderSettings(QObject *parent = nullptr);
    /// Reads what @p store holds, and keeps it.
    explicit HRReaderSettings(std::unique_ptr<QSettings> store, QObject *parent = nullptr);
    ~HRReaderSettings() override;

    ///@{
    /// Whether hints show at all; true.
    bool areHintsShown() const;
    void setHintsShown(bool shown);
    ///@}

    ///@{
    /// fullDetail.
    Detail detail() const;
    void setDetail(Detail detail);
    ///@}

    ///@{
    /// occasionHover.
    Occasion occasion() const;
    void setOccasion(Occasion occasion);
    ///@}

    ///@{
    /// Milliseconds that the pointer has to rest before a tooltip or hint shows, up to 10,000;
    /// below 0 as many as the desktop says, which is the default. HRWidgetsInterface follows it,
    /// for the host's ordinary tooltips, too: either kind shows where the other does not.
    int delay() const;
    void setDelay(int milliseconds);
    ///@}

    ///@{
    /// Milliseconds until a hint that the pointer has left hides, up to 600,000; 0 is never, below
    /// 0 as the host says (hideDelayKey), which is the default.
    int duration() const;
    void setDuration(int milliseconds);
    ///@}

    ///@{
    /// clipsByThemselves.
    Clips clips() const;
    void setClips(Clips clips);
    ///@}

    ///@{
    /// Size of the standard UI's text in per cent of the host's, 75 to 300; 100.
    int textSize() const;
    void setTextSize(int percent);
    ///@}

    ///@{
    /// Whether the standard UI shows the captions of clips; true.
    bool areCaptionsShown() const;
    void setCaptionsShown(bool shown);
    ///@}

    ///@{
    /// Whether a hint shows title, shortcut and summary first, and the rest after the pointer has
    /// kept to it for a second, or once Shift is pressed; false.
    bool startsSmall() const;
    void setStartsSmall(bool small);
    ///@}

    ///@{
    /// After how many times in full a hint starts small from then on, up to 100; 0 is never, which
    /// is the default. Only while it is above 0 hints are counted.
    int seenLimit() const;
    void setSeenLimit(int times);
    ///@}

    /// Whether the hint of a key starts small: all do, or this one has been seen often enough.
    bool beginsSmall(const QString &key) const;
    /// Counts a hint that is shown in full. Counts are kept with the values, by key.
    void countSeen(const QString &key);
    /// Forgets all that was counted.
    void forgetSeen();

    /// Whether somebody listens to pageRequested().
    bool isPageOffered() const;
    /// Emits pageRequested().
    void requestPage();

Q_SIGNALS:
    /// A value is another one now, and kept.
    void changed();

    /// The reader has asked for the settings in a hint's context menu, which offers them while
    /// somebody is connected: a host that opens its preferences, with a HRReaderSettingsWidget.
    void pageRequested();

private:
    int value(int choice) const;
    void setValue(int choice, int value);

    std::unique_ptr<HRReaderSettingsPrivate> d;
};

} // namespace Hintreels
