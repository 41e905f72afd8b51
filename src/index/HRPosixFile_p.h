// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "index/HRFileStamp_p.h"

#include <optional>

class QByteArray;
class QFile;
class QString;

namespace Hintreels {

// Everything in src/index that asks the operating system past Qt.

/// Opens a file for reading, if it is a regular file, a link to one or a Qt resource.
///
/// Anything else is left alone: opening a named pipe would block the host.
bool openRegularFile(QFile &file, const QString &path);

/// The stamp of a regular file or a link to one; nothing for anything else.
/// @param path as QFile::encodeName() spells it
std::optional<HRFileStamp> stampOfFile(const QByteArray &path);

/// Reads a regular file whole, with the stamp that it has before.
/// @param bytes keeps its memory from file to file
bool readWholeFile(const QByteArray &path, QByteArray &bytes, HRFileStamp &stamp);

/// Makes sure that a database's file is this user's own, where others can write to its directory.
///
/// Makes a missing file, readable and writable by the user alone. An existing one must be regular,
/// no link, without a second name, and neither of another user nor writable by others; the same
/// goes for the files that SQLite keeps beside it.
bool takeOwnFile(const QString &path);

} // namespace Hintreels
