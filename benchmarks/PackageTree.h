// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <vector>

/// A data path full of generated packages, the same for the same number of control files.
///
/// One package holds 200 control files, so that directories are as long as those of a large suite.
/// Every file has 20 entries and serves one of 12 locales; 12 files in a row have the same keys.
class PackageTree
{
public:
    struct File
    {
        QString path;
        QByteArray nativePath;
        QString package;
    };

    explicit PackageTree(int fileCount);

    QString path() const;
    const std::vector<File> &files() const { return m_files; }
    const std::vector<QByteArray> &controlDirectories() const { return m_controlDirectories; }

    /// The locales that the files serve, by name.
    static QStringList locales();

    /// A key of the file, which no file with another dozen or locale has.
    static QString keyOf(int file, int entry = 10);

    /// The locale of the file.
    static QString localeOf(int file);

    /// The bytes of all keys of all files.
    qint64 keyBytes() const;

    /// Writes a file anew, with a time and a size of its own.
    void edit(int file);

private:
    void write(int file, int edition);

    QTemporaryDir m_directory;
    std::vector<File> m_files;
    std::vector<QByteArray> m_controlDirectories;
    int m_edition = 0;
};

/// The tree of a size, made when it is first asked for. Returns only once all readings of its files
/// can be trusted, that is when the last edit lies further back than the steps of slow clocks.
PackageTree &settledTree(int fileCount);

/// Waits as long as settledTree() does.
void waitUntilSettled();
