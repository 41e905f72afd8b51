// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QTemporaryDir>

/// A data path in a temporary directory, with packages that tests write file by file.
class TestPackages
{
public:
    /// The data path's canonical path.
    QString path() const;

    /// Writes a file below the data path, with the directories that it needs.
    /// @return the file's canonical path
    QString write(const QString &relativePath, const QByteArray &content) const;

    /// Writes a control file of @p package with one root around @p entries.
    /// @param rootAttributes what stands inside the root's start tag, such as `locale="de_DE"`
    /// @return the file's canonical path
    QString writeControl(const QString &package, const QString &name, const QByteArray &entries,
        const QByteArray &rootAttributes = {}) const;

private:
    QTemporaryDir m_directory;
};
