// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "files/HRDoomedFile_p.h"
#include "files/HRFileStamp_p.h"

#include <QDeadlineTimer>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <string_view>

class QSqlError;

namespace Hintreels {

/// Writes what failed and SQLite's reason to Qt's debug output.
void reportSqlError(const char *message, const QSqlError &error);

/// Whether SQLite calls the database corrupt, or no database.
bool isCorruption(const QSqlError &error);

/// Whether another connection held the database locked for longer than we wait.
bool isBusy(const QSqlError &error);

/// Marks a database as ours in its header; one that carries another's mark keeps it.
/// @return false where SQLite refused, which is in @p query then
bool markAsOurs(QSqlQuery &query);

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
    /// @param isOwnPlace whether whatever lies at the path is ours
    bool open(
        const QString &connection, const QString &path, const QStringList &tables, bool isOwnPlace);

    /// Closes and forgets the connection; queries on the handle must be gone.
    void close();

    /// Invalid while closed. A query on an invalid handle would go to the host's own database.
    QSqlDatabase handle() const { return m_handle; }
    bool isOpen() const { return m_handle.isValid(); }

    /// Whether SQLite itself finds the database whole, its indexes included. Reads all of it.
    bool isSound();

    /// Runs a statement; after a failure, it reports under @p message.
    bool execute(const char *statement, const char *message);

    /// Takes the lock for writing, to be given back by commit(); false only where another holds it,
    /// and for a second after a commit that failed for any other reason.
    ///
    /// Once busy, the database is not waited for, nor reported as busy, for a second.
    bool lock(const char *message);

    /// False where nothing of what was written stays, for instance because another reads on.
    bool commit(const char *message);

    /// Whether SQLite has called the database corrupt since it was opened last, and the file is
    /// ours so that it may be made anew.
    bool isCorrupt() const { return m_isCorrupt; }

    /// Keeps hold of the file, which somebody else has found corrupt. To be called while it is
    /// open.
    void holdCorruptFile();

    /// Deletes the file that was found corrupt; one that another process has put in its place
    /// stays.
    void removeCorruptFile();

    /// To be called when the file was deleted: another one may take its place.
    void forgetFile() { m_opened.reset(); }

private:
    bool holdsOnly(const QStringList &tables);
    bool holdsNothing();
    bool isOurs() const;
    void noteCorruption(bool isCorruption);
    qint64 pragma(const char *statement);
    bool isFree(const char *message);
    QSqlError ask(const char *statement, const char *message);
    QSqlQuery &prepared(const char *statement);

    QSqlDatabase m_handle;
    std::map<std::string_view, QSqlQuery> m_prepared; // by statement; gone while closed
    bool m_isOwnPlace = false;
    bool m_isCorrupt = false;
    std::optional<HRFileStamp> m_found; // before it was opened
    std::optional<HRDoomedFile> m_corruptFile;
    std::optional<HRFileStamp> m_opened; // of the file that was last found to be ours
    bool m_wasBusy = false; // the last lock or commit, by another's lock
    bool m_isFailing = false; // the last commit did, for another reason
    QDeadlineTimer m_haste; // until then nothing waits for a lock
};

} // namespace Hintreels
