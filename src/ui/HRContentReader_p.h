// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "content/HRXmlElement.h"

#include <QColor>
#include <QLocale>
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
    using LocaleSource = std::function<QLocale()>;

    /// @param currentLocale asked for content that names no locale of its own
    explicit HRContentReader(LocaleSource currentLocale, QObject *parent = nullptr);

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

    /// @copydoc Hintreels::readableColor()
    Q_INVOKABLE QColor readable(const QColor &wanted, const QColor &background) const;

    /// Gives the Markdown that a TextEdit holds the look of the UI, and finds its links.
    ///
    /// @param look the colours "link" and "codeBackground", and "spacing" in pixels
    /// @return a map for each link, in reading order: "href", "text", and the character positions
    ///     "start" and "end"
    Q_INVOKABLE QVariantList styleText(QQuickTextDocument *document, const QVariantMap &look) const;

private:
    LocaleSource m_currentLocale;
};

/// Takes the indentation that all lines share off a block of text, and blank lines off its ends.
///
/// A first line that follows its start tag directly is not indented, and does not count.
QString dedent(const QString &text);

} // namespace Hintreels
