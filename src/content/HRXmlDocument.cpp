// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlDocument_p.h"

#include <algorithm>

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
    m_isOver = m_next == m_end || !m_guard.allowsNesting();
    if (!m_isOver)
        m_pieceEnd = pieceEnd();
    m_isOver = m_isOver || m_next == m_end;
    return m_isOver ? QChar(EndOfDocument) : *m_next++;
}

const QChar *HRXmlDocument::pieceEnd()
{
    return m_skipped == Skipped::nothing ? m_next + qMin<qptrdiff>(m_end - m_next, pieceLength)
                                         : skippedPieceEnd();
}

/// Skips to the next characters that the reader has to see.
const QChar *HRXmlDocument::skippedPieceEnd()
{
    const QChar *const begin = m_next;
    // "]]>" means something, and "\r\n" is one line end: nothing may come to stand together.
    const bool isAfterSign = begin[-1] == u']' || begin[-1] == u'\r';
    while (!isAfterSign && m_next != m_end && isSkipped(*m_next))
        ++m_next;
    if (m_next != begin) {
        m_skippedInLine
            = int(m_next - begin) + (hasLineEnd(m_skipEnd, begin) ? 0 : m_skippedInLine);
        m_skipEnd = m_next;
    }
    return m_skipped == Skipped::text ? textPieceEnd() : cDataPieceEnd();
}

/// Up to where text is no text, or a single character.
const QChar *HRXmlDocument::textPieceEnd()
{
    static const QString cDataStart = QStringLiteral("<![CDATA[");
    if (unread().startsWith(cDataStart)) {
        m_skipped = Skipped::cData;
        return m_next + cDataStart.size();
    }
    if (m_next != m_end && (*m_next == u'<' || *m_next == u'&'))
        m_skipped = Skipped::nothing;
    return qMin(m_next + 1, m_end);
}

/// A single character. Behind the last one of the section its element's text goes on.
const QChar *HRXmlDocument::cDataPieceEnd()
{
    if (m_next != m_end && *m_next == u'>' && m_next[-1] == u']' && m_next[-2] == u']')
        m_skipped = Skipped::text;
    return qMin(m_next + 1, m_end);
}

void HRXmlDocument::skipText()
{
    // The reader must stand right behind a tag, and not in it, nor ahead.
    if (m_keepsEverything || m_next == m_text.cbegin() || m_next[-1] != u'>')
        return;
    m_skipped = Skipped::text;
    m_pieceEnd = m_next; // to be asked again
}

/// Whether a character can neither end what is skipped nor a line.
bool HRXmlDocument::isSkipped(QChar character) const
{
    switch (character.unicode()) {
    case ']':
    case '\r':
    case '\n':
        return false;
    case '<':
    case '&':
    case '>':
        return m_skipped == Skipped::cData;
    default:
        return true;
    }
}

int HRXmlDocument::skippedInLine() const
{
    const QChar *const current = m_isOver ? m_next : m_next - 1;
    return hasLineEnd(m_skipEnd, current) ? 0 : m_skippedInLine;
}

bool HRXmlDocument::hasLineEnd(const QChar *begin, const QChar *end)
{
    return std::any_of(begin, qMax(begin, end),
        [](QChar character) { return character == u'\n' || character == u'\r'; });
}

} // namespace Hintreels
