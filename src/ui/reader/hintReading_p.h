// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVariantMap>

#include <functional>

namespace Hintreels {

class HRXmlElement;

/// Makes of a text in the content what the reader sees, such as its translation.
using HRSay = std::function<QString(const QString &text)>;

/// What a hint reel is called, and what it says in a line; both as the content has it.
struct HRHintGist
{
    QString title;
    QString summary;
};

HRHintGist readGist(const HRXmlElement &element);

/// What the standard UI shows of a hint reel, as plain values: see HRContentReader::read().
///
/// However much the content holds, a popup shows no more than somebody could read and the UI can
/// lay out at once. What is cut ends in an ellipsis: a title of 300 UTF-16 units, a summary or a
/// line of keys of 1,000, a block of 10,000 or 300 lines, a hint of 30,000 in 200 blocks with 100
/// links. A key cap takes as much room in the hint as 30 units, and lists within lists that begin
/// in one line count as a line each.
QVariantMap readHint(const HRXmlElement &element, const HRSay &say);

/// Takes the indentation that all lines share off a block of text, and blank lines off its ends.
///
/// A first line that follows its start tag directly is not indented, and does not count.
QString dedent(const QString &text);

} // namespace Hintreels
