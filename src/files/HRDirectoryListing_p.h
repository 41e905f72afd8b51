// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "files/HRFileStamp_p.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

#include <dirent.h>

namespace Hintreels {

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

    /// As it was given, with its slash.
    const QString &directory() const { return m_path; }

    const std::vector<HRListedFile> &files() const { return m_files; }

    /// Forgets all files but the first ones.
    void keepFirst(size_t count);

    /// A listed file's name as the operating system spells it.
    const char *nativeName(const HRListedFile &file) const
    {
        return m_nativeNames.constData() + file.nativeName;
    }

    /// The open directory as the operating system numbers it; -1 where there is none.
    int descriptor() const { return m_descriptor; }

    /// Whether the files are Qt's resources, which the operating system does not know.
    bool hasResources() const { return !m_directory; }

    /// The stamp of a listed file; nothing where it may not be read, or is gone.
    std::optional<HRFileStamp> stampOfReadable(const HRListedFile &file) const;

private:
    void list(const QByteArray &suffix);
    void add(const QString &name, const char *nativeName);

    QString m_path;
    DIR *m_directory = nullptr;
    int m_descriptor = -1; // owned by m_directory
    std::vector<HRListedFile> m_files;
    QByteArray m_nativeNames; // in one piece, each with a zero at its end
};

} // namespace Hintreels
