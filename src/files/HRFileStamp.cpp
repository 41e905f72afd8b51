// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "files/HRFileStamp_p.h"

#include "files/posix_p.h"

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QVarLengthArray>

namespace Hintreels {

namespace {

// Long enough for most paths, which then need no memory of their own.
using AsciiPath = QVarLengthArray<char, 256>;

/// Appends text in ASCII, which the operating system spells as we do; false for any other.
bool append(AsciiPath &path, const QString &text)
{
    const QChar *characters = text.constData();
    const int length = path.size();
    path.resize(length + text.size());
    char *bytes = path.data() + length;
    ushort bits = 0;
    for (int i = 0; i < text.size(); ++i) {
        bits |= characters[i].unicode();
        bytes[i] = char(characters[i].unicode());
    }
    return bits < 0x80;
}

} // namespace

std::optional<HRFileStamp> stampOfFile(const QByteArray &path)
{
    return stampAt(path.constData());
}

std::optional<HRFileStamp> stampOfFile(const QString &directory, const QString &name)
{
    AsciiPath path;
    if (!append(path, directory) || !append(path, name))
        return stampOfFile(QFile::encodeName(directory + name));
    path.append('\0');
    return stampAt(path.constData());
}

} // namespace Hintreels
