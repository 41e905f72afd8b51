// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "hintreels/check/Suppression.h"

#include "hintreels/check/ControlFile.h"

#include <QRegularExpression>

#include <algorithm>
#include <limits>

namespace Hintreels {

namespace {

constexpr int endOfFile = std::numeric_limits<int>::max();

/// The last line before whatever follows the element that begins behind an offset.
int lastLineOfNext(const ControlFile &file, int offset)
{
    const auto &elements = file.elements();
    const auto next = std::find_if(elements.begin(), elements.end(),
        [offset](const Element &element) { return element.begin >= offset; });
    if (next == elements.end() || next == elements.begin())
        return endOfFile;
    const auto isInside = [next](const Element &element) {
        const QObject *at = element.node;
        while (at && at != next->node)
            at = at->parent();
        return at != nullptr;
    };
    const auto behind = std::find_if_not(next, elements.end(), isInside);
    return behind == elements.end() ? endOfFile : behind->spot().line - 1;
}

/// A comment before the root covers findings above it, too: those of the file as a whole.
int firstLine(const ControlFile &file, int offset)
{
    return file.root() && file.root()->begin > offset ? 1 : file.spot(offset).line;
}

} // namespace

bool Suppression::covers(const Finding &finding) const
{
    return !reason.isEmpty() && finding.tag == tag && finding.spot.file == spot.file
        && finding.spot.line >= firstLine && finding.spot.line <= lastLine;
}

QVector<Suppression> suppressionsOf(const ControlFile &file)
{
    static const QRegularExpression comment(
        QStringLiteral(R"(<!--\s*hintreels:\s*ignore\s*([\w-]*)\s*:?(.*?)-->)"),
        QRegularExpression::DotMatchesEverythingOption);
    QVector<Suppression> suppressions;
    auto matches = comment.globalMatch(file.text());
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const int begin = int(match.capturedStart());
        suppressions.append({ match.captured(1), match.captured(2).trimmed(), file.spot(begin),
            firstLine(file, begin), lastLineOfNext(file, int(match.capturedEnd())) });
    }
    return suppressions;
}

} // namespace Hintreels
