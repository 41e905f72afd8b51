// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRegExp>
#include <QString>

#include <functional>
#include <string_view>

namespace Hintreels {

/// Tells control files from other XML files by a look at their beginning, without parsing them.
class HRControlFileProbe
{
public:
    /// Reads on in a file as read() of the operating system does.
    using Read = std::function<qint64(char *buffer, qint64 size)>;

    HRControlFileProbe();

    /// Whether the first element in the file is `hintreels`; reads only about as far as that.
    ///
    /// The element is looked for line by line, in pieces of at most 1024 bytes: a name that a piece
    /// cuts in two is taken for the part before the cut.
    bool isControlFile(const Read &read);

private:
    QString firstElement(const Read &read);
    QString startTagIn(std::string_view piece);

    QRegExp m_startTag;
};

/// What the pattern for start tags, `<(\w+)\s*(\w|>|/>)`, captures first in a text of ASCII; empty
/// where it matches nothing. Compiling and running the expression takes twenty times as long.
std::string_view startTagInAscii(std::string_view text);

} // namespace Hintreels
