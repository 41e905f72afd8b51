// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/HRControlFileProbe_p.h"

#include <QIODevice>
#include <QString>

#include <cstring>

namespace Hintreels {

namespace {

constexpr qint64 LongestPiece = 1024;
// QIODevice::readLine() keeps one byte of its limit for a terminating zero.
constexpr qint64 ReadLineLimit = LongestPiece + 1;

} // namespace

HRControlFileProbe::HRControlFileProbe()
    // Declarations, comments and document types do not match: no word character follows their "<".
    : m_startTag(QStringLiteral("<(\\w+)\\s*(\\w|>|/>)"))
{
}

bool HRControlFileProbe::isControlFile(QIODevice &file)
{
    return firstElement(file) == QLatin1String("hintreels");
}

QString HRControlFileProbe::firstElement(QIODevice &file)
{
    char piece[ReadLineLimit];
    for (;;) {
        const qint64 length = file.readLine(piece, ReadLineLimit);
        if (length <= 0)
            return QString();
        // Searching text without "<" takes seconds where a file is megabytes of empty lines.
        if (!std::memchr(piece, '<', size_t(length)))
            continue;
        if (m_startTag.indexIn(QString::fromUtf8(piece, int(length))) >= 0)
            return m_startTag.cap(1);
    }
}

} // namespace Hintreels
