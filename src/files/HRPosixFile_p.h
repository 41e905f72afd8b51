// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "files/HRFileStamp_p.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

#include <dirent.h>

class QFile;

namespace Hintreels {

// Everything in src/index that asks the operating system past Qt.

/// Opens a file for reading, if it is a regular file, a link to one or a Qt resource.
///
/// Anything else is left alone: opening a named pipe would block the host.
bool openRegularFile(QFile &file, const QString &path);

/// Reads such a file whole.
bool readRegularFile(const QString &path, QByteArray &bytes);

/// A file that a directory lists.
struct HRListedFile
{
    QString name;
    int nativeName; // where the listing keeps the name as QFile::encodeName() spells it
};

/// The files in a directory that a reader may take for content: regular, no links, not hidden, and
/// with this suffix in whatever case; sorted by name without regard to case. The same as QDir
/// finds, in a tenth of the time, but for those that may not be read: this shows when one is looked
/// at, by its name in the open directory, which is quicker than by its whole path. Qt's resources
/// are listed, too.
class HRDirectoryListing
{
public:
    /// @param directory with its slash
    /// @param suffix in ASCII
    HRDirectoryListing(const QString &directory, const QByteArray &suffix);
    ~HRDirectoryListing();
    Q_DISABLE_COPY(HRDirectoryListing)

    const std::vector<HRListedFile> &files() const { return m_files; }

    /// A listed file's name as the operating system spells it.
    const char *nativeName(const HRListedFile &file) const
    {
        return m_nativeNames.constData() + file.nativeName;
    }

    /// Whether the files are Qt's resources, which the operating system does not know.
    bool hasResources() const { return !m_directory; }

    /// The stamp of a listed file; nothing where it may not be read, or is gone.
    std::optional<HRFileStamp> stampOfReadable(const HRListedFile &file) const;

private:
    friend class HRRegularFile;

    void list(const QByteArray &suffix);
    void add(const QString &name, const char *nativeName);

    DIR *m_directory = nullptr;
    int m_descriptor = -1; // that of the directory
    std::vector<HRListedFile> m_files;
    QByteArray m_nativeNames; // in one piece, each with a zero at its end
};

/// A regular file or a link to one, open for reading as long as this lives.
class HRRegularFile
{
public:
    /// @param path as QFile::encodeName() spells it
    explicit HRRegularFile(const QByteArray &path);

    /// A file that a directory lists.
    HRRegularFile(const HRDirectoryListing &listing, const HRListedFile &file);
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
    void take(int descriptor);

    int m_descriptor = -1;
    HRFileStamp m_stamp;
};

/// The stamp of a regular file or a link to one; nothing for anything else.
/// @param path as QFile::encodeName() spells it
std::optional<HRFileStamp> stampOfFile(const QByteArray &path);

/// The same for a name in a directory, which is given with its slash.
std::optional<HRFileStamp> stampOfFile(const QString &directory, const QString &name);

/// A file that is to be deleted. It is kept hold of, so that no other is taken for it.
///
/// To be made while the file is open elsewhere in this process; before then, another one could
/// have been given its number.
class HRDoomedFile
{
public:
    /// @param stamp of the file; one that has taken its place since is left alone
    HRDoomedFile(const QString &path, const HRFileStamp &stamp);
    ~HRDoomedFile();
    Q_DISABLE_COPY(HRDoomedFile)

    /// Deletes the file, unless another has taken its place. Waits for whoever does the same, in
    /// this process or another.
    void remove();

private:
    QByteArray m_path;
    int m_descriptor = -1;
};

/// Makes sure that a database's file is this user's own, where others can write to its directory.
///
/// Makes a missing file, readable and writable by the user alone. An existing one must be regular,
/// no link, without a second name, and neither of another user nor writable by others; the same
/// goes for the files that SQLite keeps beside it.
bool takeOwnFile(const QString &path);

} // namespace Hintreels
