// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlDocument_p.h"

namespace Hintreels {

namespace {

// Between two questions to the guard. So few characters nest so few elements that the stack grows
// by some kilobytes at most.
constexpr qptrdiff pieceLength = 64;

/// The text up to the first of Qt's own signs in it, where Qt's sources say that it ends.
QString upToSign(const QString &text)
{
    int end = text.size();
    for (const ushort sign : { QXmlInputSource::EndOfDocument, QXmlInputSource::EndOfData }) {
        const int found = text.indexOf(QChar(sign));
        end = found < 0 ? end : qMin(found, end);
    }
    return text.left(end);
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
    , m_pieceEnd(m_next)
    , m_end(m_text.cend())
    , m_guard(m_text.size())
{
}

HRXmlDocument::HRXmlDocument(const QByteArray &bytes)
    : m_text(upToSign(fromRawData(bytes, true)))
    , m_next(m_text.cbegin())
    , m_pieceEnd(m_next)
    , m_end(m_text.cend())
    , m_guard(m_text.size())
{
}

/// Asks the guard and takes the first character of the next piece.
QChar HRXmlDocument::nextPiece()
{
    if (m_next == m_end || !m_guard.allowsNesting())
        return EndOfDocument;
    m_pieceEnd = m_next + qMin<qptrdiff>(m_end - m_next, pieceLength);
    return *m_next++;
}

} // namespace Hintreels
