// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/textCut_p.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace Hintreels {

namespace {

constexpr QChar zeroWidthJoiner(0x200d);

// Scripts without blanks are looked through word by word, which takes long for a long text.
constexpr int enoughToLookAt = 200;

// Qt 5 knows of marks and flags, but takes a joiner for the end of a character.
bool isBetweenCharacters(const QTextBoundaryFinder &finder, const QString &text)
{
    const int position = finder.position();
    return finder.isAtBoundary() && (position == 0 || text.at(position - 1) != zeroWidthJoiner);
}

/// Where a character begins for certain, unlike within marks, flags and emoji, some way before an
/// end.
int safeStart(const QString &text, int end)
{
    int start = std::max(0, end - enoughToLookAt);
    while (start > 0 && !text.at(start).isLetterOrNumber() && !text.at(start).isSpace())
        --start;
    return start;
}

/// The end of the last whole character that ends at @p latest or before.
int characterEnd(const QString &text, int latest)
{
    // A boundary shows by what follows it: two units, where that is a surrogate pair.
    const int start = safeStart(text, latest);
    const QString part = text.mid(start, latest + 2 - start);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, part);
    finder.setPosition(latest - start);
    while (finder.position() > 0 && !isBetweenCharacters(finder, part))
        finder.toPreviousBoundary();
    return start + finder.position();
}

} // namespace

QString cutText(const QString &text, int longest)
{
    if (text.size() <= longest)
        return text;
    return text.left(characterEnd(text, longest - 1)) + ellipsis;
}

} // namespace Hintreels
