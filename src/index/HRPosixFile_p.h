// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "index/HRFileStamp_p.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

class QFile;

namespace Hintreels {

// Everything in src/index that asks the operating system past Qt.

/// Opens a file for reading, if it is a regular file, a link to one or a Qt resource.
///
/// Anything else is left alone: opening a named pipe would block the host.
bool openRegularFile(QFile &file, const QString &path);

/// A regular file or a link to one, open for reading as long as this lives.
class HRRegularFile
{
public:
    /// @param path as QFile::encodeName() spells it
    explicit HRRegularFile(const QByteArray &path);
    ~HRRegularFile();
    Q_DISABLE_COPY(HRRegularFile)

    /// False where the file is missing, is no regular file or may not be read.
    bool isOpen() const { return m_descriptor >= 0; }

    /// As it was when the file was opened.
    const HRFileStamp &stamp() const { return m_stamp; }

    /// The number of bytes read, 0 at the end, less after an error.
    qint64 read(char *buffer, qint64 size);

    /// Reads what is left; what @p bytes holds of memory is used again.
    bool readAll(QByteArray &bytes);

private:
    int m_descriptor;
    HRFileStamp m_stamp;
};

/// Names of the files in a directory that a reader may take for content: regular, no links,
/// readable, not hidden, and with this suffix in whatever case; sorted by name without regard
/// to case. The same as QDir finds, in a tenth of the time. Qt's resources are listed, too.
QStringList readableFileNames(const QString &directory, const QString &suffix);

/// The stamp of a regular file or a link to one; nothing for anything else.
/// @param path as QFile::encodeName() spells it
std::optional<HRFileStamp> stampOfFile(const QByteArray &path);

/// A directory held open, in which files are found by name; this is quicker than by whole paths.
class HRDirectoryHandle
{
public:
    /// @param path as QFile::encodeName() spells it
    explicit HRDirectoryHandle(const QByteArray &path);
    ~HRDirectoryHandle();
    Q_DISABLE_COPY(HRDirectoryHandle)

    /// As stampOfFile(), for a file in the directory; nothing where the directory did not open.
    std::optional<HRFileStamp> stampOfFile(const char *name) const;

private:
    int m_descriptor;
};

/// Makes sure that a database's file is this user's own, where others can write to its directory.
///
/// Makes a missing file, readable and writable by the user alone. An existing one must be regular,
/// no link, without a second name, and neither of another user nor writable by others; the same
/// goes for the files that SQLite keeps beside it.
bool takeOwnFile(const QString &path);

} // namespace Hintreels
