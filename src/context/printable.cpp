// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "context/printable_p.h"

#include <algorithm>

namespace Hintreels {

namespace {

bool misleads(QChar c)
{
    const bool isSeparator = c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
    const bool turns
        = (c >= QChar(0x202A) && c <= QChar(0x202E)) || (c >= QChar(0x2066) && c <= QChar(0x2069));
    return c.category() == QChar::Other_Control || isSeparator || turns;
}

QString escaped(QChar c)
{
    switch (c.unicode()) {
    case '\n':
        return QStringLiteral("\\n");
    case '\r':
        return QStringLiteral("\\r");
    case '\t':
        return QStringLiteral("\\t");
    }
    return QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
}

} // namespace

QString printable(const QString &text)
{
    if (std::none_of(text.begin(), text.end(), misleads))
        return text;
    QString line;
    for (const QChar c : text)
        line += misleads(c) ? escaped(c) : QString(c);
    return line;
}

} // namespace Hintreels
