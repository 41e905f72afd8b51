// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QRegExp>

class QIODevice;

namespace Hintreels {

/// Tells control files from other XML files by a look at their beginning, without parsing them.
class HRControlFileProbe
{
public:
    HRControlFileProbe();

    /// Whether the first element in the file is `hintreels`; reads only as far as that.
    ///
    /// The element is looked for line by line, in pieces of at most 1024 bytes: a name that a piece
    /// cuts in two is taken for the part before the cut.
    bool isControlFile(QIODevice &file);

private:
    QString firstElement(QIODevice &file);

    QRegExp m_startTag;
};

} // namespace Hintreels
