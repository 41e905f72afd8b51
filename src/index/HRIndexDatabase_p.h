// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QStringList>

class QSqlError;

namespace Hintreels {

/// Writes what failed and SQLite's reason to Qt's debug output.
void reportSqlError(const char *message, const QSqlError &error);

/// Whether SQLite calls the database corrupt, or no database.
bool isDamage(const QSqlError &error);

/// Whether another connection held the database locked for longer than we wait.
bool isRefusal(const QSqlError &error);

/// One named connection to an SQLite file that belongs to this user and holds our tables only.
class HRIndexDatabase
{
public:
    HRIndexDatabase() = default;
    ~HRIndexDatabase();
    Q_DISABLE_COPY(HRIndexDatabase)

    /// Opens a file, which is made where it is missing.
    ///
    /// Refuses files that others could have planted or can write to, and databases with any table
    /// but @p tables, with a trigger or with a view. An open connection of this name is replaced.
    bool open(const QString &connection, const QString &path, const QStringList &tables);

    /// Closes and forgets the connection; queries on the handle must be gone.
    void close();

    /// Invalid while closed. A query on an invalid handle would go to the host's own database.
    QSqlDatabase handle() const { return m_handle; }
    bool isOpen() const { return m_handle.isValid(); }

    /// Whether SQLite itself finds the database whole, its indexes included. Reads all of it.
    bool isSound();

    /// Runs a statement; after a failure, it reports under @p message.
    bool execute(const char *statement, const char *message);

    /// Takes the lock for writing, to be given back by commit(); false only where another holds it.
    bool lock(const char *message);

    /// False where nothing of what was written stays, for instance because another reads on.
    bool commit(const char *message);

    /// Whether SQLite has called the database corrupt since it was opened last.
    bool isDamaged() const { return m_damaged; }

private:
    bool holdsOnly(const QStringList &tables);
    bool noteDamage(const QSqlError &error);

    QSqlDatabase m_handle;
    bool m_damaged = false;
};

} // namespace Hintreels
