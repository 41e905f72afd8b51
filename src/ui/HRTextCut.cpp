// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/HRTextCut_p.h"

#include <QTextBoundaryFinder>

namespace Hintreels {

namespace {

constexpr QChar zeroWidthJoiner(0x200d);

// Qt 5 knows of marks and flags, but takes a joiner for the end of a character.
bool isBetweenCharacters(const QTextBoundaryFinder &finder, const QString &text)
{
    const int position = finder.position();
    return finder.isAtBoundary() && (position == 0 || text.at(position - 1) != zeroWidthJoiner);
}

/// The end of the last whole character that ends at @p latest or before.
int characterEnd(const QString &text, int latest)
{
    // A boundary shows by what follows it: two units, where that is a surrogate pair.
    const QString beginning = text.left(latest + 2);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, beginning);
    finder.setPosition(latest);
    while (finder.position() > 0 && !isBetweenCharacters(finder, beginning))
        finder.toPreviousBoundary();
    return finder.position();
}

} // namespace

QString cutText(const QString &text, int longest)
{
    if (text.size() <= longest)
        return text;
    return text.left(characterEnd(text, longest - 1)) + ellipsis;
}

} // namespace Hintreels
