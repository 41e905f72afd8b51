// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "files/HRFileStamp_p.h"

#include <QtGlobal>

class QByteArray;
class QFile;
class QString;

namespace Hintreels {

class HRDirectoryListing;
struct HRListedFile;

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

/// Opens a file for reading, if it is a regular file, a link to one or a Qt resource.
///
/// Anything else is left alone: opening a named pipe would block the host.
bool openRegularFile(QFile &file, const QString &path);

/// Reads such a file whole.
bool readRegularFile(const QString &path, QByteArray &bytes);

} // namespace Hintreels
