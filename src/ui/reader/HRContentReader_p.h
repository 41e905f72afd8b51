// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "content/HRXmlElement.h"
#include "gates/HRFileUse_p.h"
#include "ui/reader/HRMarkdownGate_p.h"
#include "ui/reader/HRSceneSettings_p.h"

#include <QAccessible>
#include <QColor>
#include <QJSValue>
#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QVariantMap>

#include <functional>
#include <memory>

QT_BEGIN_NAMESPACE
class QQuickTextDocument;
class QTextDocument;
QT_END_NAMESPACE

namespace Hintreels {

class HRMeasuring;
class HRUiWords;

/// What the standard UI asks of C++: content as plain values, and decisions on colour and text.
///
/// QML knows it as the context property "hintreelReader". It keeps the sizes of files until the
/// next hint is read.
/// GUI thread only.
class HRContentReader : public QObject, private QAccessible::ActivationObserver
{
    Q_OBJECT
    Q_PROPERTY(int measured READ measured NOTIFY measuredChanged)
    Q_PROPERTY(QVariantMap hostColors READ hostColors NOTIFY hostColorsChanged)
    Q_PROPERTY(bool playsClips READ playsClips NOTIFY decided)
    Q_PROPERTY(bool repeatsClips READ repeatsClips NOTIFY decided)
    Q_PROPERTY(bool showsCaptions READ showsCaptions NOTIFY decided)
    Q_PROPERTY(double textScale READ textScale NOTIFY decided)
    Q_PROPERTY(bool highContrast READ highContrast NOTIFY decided)
    Q_PROPERTY(bool spoken READ isSpoken NOTIFY spokenChanged)
    Q_PROPERTY(QQuickItem *focusItem READ focusItem NOTIFY focusItemChanged)

public:
    using SettingsSource = std::function<HRSceneSettings()>;

    /// Whether a file may be used so.
    using FileGate = std::function<bool(const QString &path, HRFileUse use)>;

    /// @param settings asked anew at each use
    /// @param gate asked for each file that is looked at; without one, all are
    explicit HRContentReader(
        SettingsSource settings, QObject *parent = nullptr, FileGate gate = FileGate());
    ~HRContentReader() override;

    /// Everything that is shown of a hint reel, an empty map for a null element.
    ///
    /// "title", "shortcut" and "documentation" are its attributes, "summary" its first summary in
    /// one line, "rightToLeft" whether its locale is written that way, and "blocks" a list of maps
    /// in document order: the attributes of one child element, its text under "text" and its tag
    /// name under "block". Markdown is free of the XML's indentation, other text is one line.
    /// Unknown elements and those that would show nothing are left out. A link without a text has
    /// its target for one.
    ///
    /// No text is longer than a popup can lay out at once: see Hintreels::readHint().
    /// @param say a function that is given each text but the shortcut, and returns what the reader
    ///     sees of it; without one, texts stay as they are
    Q_INVOKABLE QVariantMap read(
        Hintreels::HRXmlElement *element, const QJSValue &say = QJSValue()) const;

    /// One of the standard UI's own words in the reader's language: see HRUiWords.
    Q_INVOKABLE QString word(const QString &text) const;

    /// The strokes of a shortcut or gesture, each a list of keys: see Hintreels::keyCapsOf(). Keys
    /// are named in the reader's language.
    Q_INVOKABLE QVariantList keyCaps(const QString &shortcut) const;

    /// A shortcut or gesture in words, "Control plus Shift plus L": screen readers leave signs out.
    /// @param plus the reader's word between two keys
    Q_INVOKABLE QString spokenKeys(const QString &shortcut, const QString &plus) const;

    /// Whether assistive technology is at work. What only that can tell is left out otherwise.
    bool isSpoken() const { return QAccessible::isActive(); }

    /// The "url", "width" and "height" of a picture file in pixels, an empty map where it is not a
    /// picture that can be shown, or not measured yet: see Hintreels::pictureSize().
    Q_INVOKABLE QVariantMap picture(const QString &path) const;

    /// The "width" and "height" of a clip in pixels, upright, an empty map where it cannot be
    /// opened or its header does not tell, or where it is not measured yet.
    Q_INVOKABLE QVariantMap clip(const QString &path) const;

    /// Changes when picture() and clip() have new answers: files are measured in a thread, and
    /// waited for only as long as nobody notices.
    int measured() const { return m_measured; }

    /// The colours of what the hint belongs to, by their names in QPalette; empty for those of the
    /// desktop. There is "window", "windowText", "base", "highlight" and "highlightedText".
    QVariantMap hostColors() const { return m_hostColors; }
    void setHostColors(const QVariantMap &colors);

    /// Whether only title, shortcut and summary are shown: each hint may begin so, until grow().
    Q_INVOKABLE bool isSmall() const { return detail() == HRReaderSettings::summaryDetail; }

    /// Of the blocks that read() has found those that the reader wants to see now.
    Q_INVOKABLE QVariantList shownBlocks(const QVariantList &blocks) const;

    /// Ends the small beginning of the hint on show.
    void grow();

    /// Tells the scene that the reader may have decided otherwise.
    void follow();

    ///@{
    /// See HRSceneSettings.
    bool playsClips() const { return m_settings().playsClips; }
    bool repeatsClips() const { return m_settings().repeatsClips; }
    bool showsCaptions() const { return m_settings().showsCaptions; }
    double textScale() const { return m_settings().textScale; }
    bool highContrast() const { return m_settings().highContrast; }
    ///@}

    /// What has the keyboard where the reader has taken that into the popup, whose window is not
    /// the active one then; else null.
    QQuickItem *focusItem() const { return m_focusItem; }
    void setFocusItem(QQuickItem *item);

    /// Puts all that a hint says onto the clipboard: see Hintreels::hintText().
    /// @param hint as read() has returned it
    Q_INVOKABLE void copy(const QVariantMap &hint) const;

    /// Names of the files in which a clip's captions may lie, the best for the reader first.
    Q_INVOKABLE QStringList captionFiles(const QString &clip) const;

    /// The captions of a WebVTT file, a map for each: "start" and "end" in seconds, and "text".
    /// Empty where there is no such file; no more than the first 1,000.
    Q_INVOKABLE QVariantList captions(const QString &path) const;

    /// What is shown of a caption, at most 500 UTF-16 units.
    Q_INVOKABLE QString caption(const QString &text) const;

    /// Gives memory back to the system that taken-down clips held and the allocator keeps. Takes
    /// some milliseconds.
    Q_INVOKABLE void returnMemory() const;

    /// What a link shows behind its text of where it leads, in one line; empty where its author is
    /// trusted, or where the text says it.
    Q_INVOKABLE QString shownTarget(const QString &target, const QString &text) const;

    /// Whether nothing is to move unless the reader asks for it.
    Q_INVOKABLE bool reducedMotion() const;

    /// @copydoc Hintreels::readableColor()
    Q_INVOKABLE QColor readable(
        const QColor &wanted, const QColor &background, qreal contrast = 4.5) const;

    /// Fills the document of a TextEdit with Markdown in the look of the UI, and finds its links
    /// and the places of its pictures.
    ///
    /// @param look the colours "link" and "codeBackground", "spacing" and the "width" of the text
    /// in
    ///     pixels, and "links", the number of links and pictures after which the text is cut
    /// @param findPicture a function that is given a path below the package's resources, and
    /// returns
    ///     the file
    /// @return a list of maps under "links", see linksIn(), and one under "pictures", see
    /// picturesIn(); or, where "spoken" is set in the look, one under "passages", see passagesIn()
    Q_INVOKABLE QVariantMap showMarkdown(QQuickTextDocument *document, const QString &markdown,
        const QVariantMap &look, const QJSValue &findPicture = QJSValue()) const;

Q_SIGNALS:
    void measuredChanged();
    void hostColorsChanged();
    /// The reader may have decided otherwise.
    void decided();
    /// isSmall() and shownBlocks() have other answers than when the hint was read.
    void detailChanged();
    void focusItemChanged();

    void spokenChanged();

private:
    void accessibilityActiveChanged(bool active) override;
    HRReaderSettings::Detail detail() const;
    void tellMeasured();
    void tellTargets(QTextDocument &text) const;
    HRTextPicture pictureInText(
        QJSValue findPicture, const QString &path, const QSizeF &room) const;

    bool mayUse(const QString &path, HRFileUse use) const { return !m_gate || m_gate(path, use); }

    SettingsSource m_settings;
    FileGate m_gate;
    std::unique_ptr<HRUiWords> m_words;
    HRMeasuring *m_pictures;
    HRMeasuring *m_clips;
    int m_measured = 0;
    QVariantMap m_hostColors;
    mutable bool m_beginsSmall = false; // the hint on show
    mutable HRReaderSettings::Detail m_told = HRReaderSettings::fullDetail; // to the scene
    QPointer<QQuickItem> m_focusItem;
};

} // namespace Hintreels
