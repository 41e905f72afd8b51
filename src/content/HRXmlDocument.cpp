// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlDocument_p.h"

#include <algorithm>

namespace Hintreels {

namespace {

/// Where Qt's sources say that the document ends: at their end, and at their own signs in the text.
bool isEnd(QChar character)
{
    return character == QChar(QXmlInputSource::EndOfDocument)
        || character == QChar(QXmlInputSource::EndOfData);
}

QString upToEnd(const QString &text)
{
    const auto end = std::find_if(text.cbegin(), text.cend(), isEnd);
    return text.left(int(end - text.cbegin()));
}

// Character by character, since no source tells how far it has been read.
QString takeText(QXmlInputSource *source)
{
    QString text;
    for (;;) {
        const QChar character = source->next();
        if (character == QChar(QXmlInputSource::EndOfDocument))
            return text;
        if (character != QChar(QXmlInputSource::EndOfData))
            text.append(character);
    }
}

} // namespace

HRXmlDocument::HRXmlDocument(QXmlInputSource *source)
    : m_text(takeText(source))
    , m_next(m_text.cbegin())
    , m_end(m_text.cend())
    , m_guard(m_text.size())
{
}

HRXmlDocument::HRXmlDocument(const QByteArray &bytes)
    : m_text(upToEnd(fromRawData(bytes, true)))
    , m_next(m_text.cbegin())
    , m_end(m_text.cend())
    , m_guard(m_text.size())
{
}

QChar HRXmlDocument::next()
{
    if (m_next != m_end && m_guard.allowsNesting())
        return *m_next++;
    return EndOfDocument;
}

} // namespace Hintreels
