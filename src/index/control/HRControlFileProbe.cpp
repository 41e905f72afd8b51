// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/control/HRControlFileProbe_p.h"

#include <algorithm>
#include <cstring>

namespace Hintreels {

namespace {

constexpr size_t longestPiece = 1024;

/// Cuts a file into lines, and lines into pieces.
class Pieces
{
public:
    explicit Pieces(const HRControlFileProbe::Read &read)
        : m_read(read)
    {
    }

    /// The next piece with the line break that ends it; empty at the end of the file.
    std::string_view next()
    {
        size_t length = pieceLength();
        while (length == 0 && fill())
            length = pieceLength();
        if (length == 0)
            length = m_end - m_begin;
        const std::string_view piece(m_buffer + m_begin, length);
        m_begin += length;
        return piece;
    }

private:
    /// Zero where more of the file is needed to tell.
    size_t pieceLength() const
    {
        const size_t available = std::min(m_end - m_begin, longestPiece);
        const void *lineBreak = std::memchr(m_buffer + m_begin, '\n', available);
        if (lineBreak)
            return size_t(static_cast<const char *>(lineBreak) - m_buffer) - m_begin + 1;
        return available == longestPiece ? longestPiece : 0;
    }

    bool fill()
    {
        std::memmove(m_buffer, m_buffer + m_begin, m_end - m_begin);
        m_end -= m_begin;
        m_begin = 0; // less than a piece is left, so another one has room
        const qint64 got = m_read(m_buffer + m_end, longestPiece);
        m_end += size_t(std::max<qint64>(got, 0));
        return got > 0;
    }

    const HRControlFileProbe::Read &m_read;
    char m_buffer[2 * longestPiece];
    size_t m_begin = 0;
    size_t m_end = 0;
};

bool isWord(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

bool isAscii(std::string_view text)
{
    return std::none_of(text.begin(), text.end(), [](char c) { return uchar(c) >= 0x80; });
}

size_t wordLength(std::string_view text)
{
    return size_t(std::find_if_not(text.begin(), text.end(), isWord) - text.begin());
}

bool endsStartTag(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
    return !text.empty() && (isWord(text[0]) || text[0] == '>' || text.substr(0, 2) == "/>");
}

} // namespace

HRControlFileProbe::HRControlFileProbe()
    // Declarations, comments and document types do not match: no word character follows their "<".
    : m_startTag(QStringLiteral("<(\\w+)\\s*(\\w|>|/>)"))
{
}

bool HRControlFileProbe::isControlFile(const Read &read)
{
    return firstElement(read) == QLatin1String("hintreels");
}

QString HRControlFileProbe::firstElement(const Read &read)
{
    Pieces pieces(read);
    for (;;) {
        const std::string_view piece = pieces.next();
        if (piece.empty())
            return QString();
        // Searching text without "<" takes seconds where a file is megabytes of empty lines.
        if (piece.find('<') == std::string_view::npos)
            continue;
        QString element = startTagIn(piece);
        if (!element.isEmpty())
            return element;
    }
}

QString HRControlFileProbe::startTagIn(std::string_view piece)
{
    if (isAscii(piece)) {
        const std::string_view tag = startTagInAscii(piece);
        return QString::fromLatin1(tag.data(), int(tag.size()));
    }
    const QString text = QString::fromUtf8(piece.data(), int(piece.size()));
    return m_startTag.indexIn(text) >= 0 ? m_startTag.cap(1) : QString();
}

std::string_view startTagInAscii(std::string_view text)
{
    for (size_t at = text.find('<'); at != std::string_view::npos; at = text.find('<', at + 1)) {
        const std::string_view rest = text.substr(at + 1);
        const size_t length = wordLength(rest);
        if (length > 0 && endsStartTag(rest.substr(length)))
            return rest.substr(0, length);
        // The word's last letter may stand for what has to follow a word.
        if (length > 1)
            return rest.substr(0, length - 1);
    }
    return {};
}

} // namespace Hintreels
