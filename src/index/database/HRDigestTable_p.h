// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QHash>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QStringList>

namespace Hintreels {

/// The table that keeps a digest of each control directory across runs.
///
/// Digests are written many at a time, each whole, so that what another process reads always
/// stands for itself. What cannot be written, because another process is writing, is dropped: it
/// is only read again in the next run. Another's lock is waited for once.
class HRDigestTable
{
public:
    static QString tableName();

    /// Makes the table where it is missing.
    explicit HRDigestTable(const QSqlDatabase &database);

    /// False where the table could not be made.
    bool isUsable() const { return m_isUsable; }

    /// The directory's digest, empty where there is none.
    QByteArray load(const QString &directory);

    /// Takes a digest to be written soon.
    void save(const QString &directory, const QByteArray &digest);

    /// Writes what was saved, and gives back the memory that loading took.
    void flush();

    /// Forgets everything.
    void clear();

    /// Forgets the directories that are no longer there.
    void removeMissing();

    /// Whether SQLite has called the database corrupt.
    bool isCorrupt() const { return m_isCorrupt; }

private:
    bool makeTable();
    void readAll();
    void write();
    bool run(QSqlQuery &query);
    QStringList missingDirectories();

    QSqlDatabase m_database;
    QHash<QString, QByteArray> m_digests; // as they are loaded and saved until the next flush
    QHash<QString, QByteArray> m_unsaved;
    int m_unsavedBytes = 0;
    bool m_isRead = false;
    bool m_isUsable = false;
    bool m_isCorrupt = false;
};

} // namespace Hintreels
