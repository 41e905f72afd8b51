// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "content/HRXmlElement.h"
#include "ui/HRReaderSettings_p.h"

#include <QColor>
#include <QObject>
#include <QVariantMap>

#include <functional>

QT_BEGIN_NAMESPACE
class QQuickTextDocument;
QT_END_NAMESPACE

namespace Hintreels {

/// What the standard UI asks of C++: content as plain values, and decisions on colour and text.
///
/// QML knows it as the context property "hintreelReader". It keeps nothing of what it is given.
/// GUI thread only.
class HRContentReader : public QObject
{
    Q_OBJECT

public:
    using SettingsSource = std::function<HRReaderSettings()>;

    /// @param settings asked anew at each use
    explicit HRContentReader(SettingsSource settings, QObject *parent = nullptr);

    /// Everything that is shown of a hint reel, an empty map for a null element.
    ///
    /// "title", "shortcut" and "documentation" are its attributes, "summary" its first summary in
    /// one line, "rightToLeft" whether its locale is written that way, and "blocks" a list of maps
    /// in document order: the attributes of one child element, its text under "text" and its tag
    /// name under "block". Markdown is free of the XML's indentation, other text is one line.
    /// Unknown elements and those that would show nothing are left out.
    Q_INVOKABLE QVariantMap read(Hintreels::HRXmlElement *element) const;

    /// The strokes of a shortcut or gesture, each a list of keys: "Ctrl+K, Ctrl+C" has two strokes
    /// of two keys, "Ctrl++" one stroke with the keys "Ctrl" and "+".
    Q_INVOKABLE QVariantList keyCaps(const QString &shortcut) const;

    /// The "url", "width" and "height" of a picture file in pixels, an empty map where it is not a
    /// picture that can be shown.
    ///
    /// Looks at the file's header only. A picture above 64 million pixels is refused: it would take
    /// 256 MB.
    Q_INVOKABLE QVariantMap picture(const QString &path) const;

    /// The "width" and "height" of a clip in pixels, an empty map where it cannot be opened or its
    /// header does not tell.
    Q_INVOKABLE QVariantMap clip(const QString &path) const;

    /// Names of the files in which a clip's captions may lie, the best for the reader first.
    Q_INVOKABLE QStringList captionFiles(const QString &clip) const;

    /// The captions of a WebVTT file, a map for each: "start" and "end" in seconds, and "text".
    /// Empty where there is no such file.
    Q_INVOKABLE QVariantList captions(const QString &path) const;

    /// Whether nothing is to move unless the reader asks for it.
    Q_INVOKABLE bool reducedMotion() const;

    /// @copydoc Hintreels::readableColor()
    Q_INVOKABLE QColor readable(const QColor &wanted, const QColor &background) const;

    /// Fills the document of a TextEdit with Markdown in the look of the UI, and finds its links.
    ///
    /// @param look the colours "link" and "codeBackground", and "spacing" in pixels
    /// @return a map for each link, in reading order: "href", "text", and the character positions
    ///     "start" and "end"
    Q_INVOKABLE QVariantList showMarkdown(
        QQuickTextDocument *document, const QString &markdown, const QVariantMap &look) const;

private:
    SettingsSource m_settings;
};

/// Takes the indentation that all lines share off a block of text, and blank lines off its ends.
///
/// A first line that follows its start tag directly is not indented, and does not count.
QString dedent(const QString &text);

} // namespace Hintreels
