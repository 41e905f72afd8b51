// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/database/HRDigestTable_p.h"

#include "index/database/HRIndexDatabase_p.h"

#include <QFileInfo>
#include <QSqlError>
#include <QVariant>

#include <utility>

namespace Hintreels {

namespace {

// Enough to make the costs of a transaction small against those of what it writes.
constexpr int mostUnsavedBytes = 1 << 20;

const QString selectAll = QStringLiteral("SELECT path, files FROM control_directories");

} // namespace

QString HRDigestTable::tableName()
{
    return QStringLiteral("control_directories");
}

HRDigestTable::HRDigestTable(const QSqlDatabase &database)
    : m_database(database)
{
    // What is lost in a crash of the machine is read again. Unlike the journal in memory, the one
    // on disk keeps the file whole when the process is killed.
    QSqlQuery query(m_database);
    query.exec(QStringLiteral("PRAGMA synchronous=OFF"));
    // Everything is read once: keeping more pages than these (in KiB) only costs fresh memory.
    query.exec(QStringLiteral("PRAGMA cache_size=-128"));
    m_isUsable = query.prepare(selectAll) || makeTable();
}

QByteArray HRDigestTable::load(const QString &directory)
{
    if (!std::exchange(m_isRead, true))
        readAll();
    return m_digests.value(directory);
}

void HRDigestTable::save(const QString &directory, const QByteArray &digest)
{
    m_digests.insert(directory, digest);
    m_unsaved.insert(directory, digest);
    m_unsavedBytes += digest.size();
    if (m_unsavedBytes > mostUnsavedBytes)
        write();
}

void HRDigestTable::flush()
{
    write();
    m_digests.clear();
    m_isRead = false;
}

void HRDigestTable::write()
{
    if (m_unsaved.isEmpty())
        return;
    m_database.transaction();
    QSqlQuery query(m_database);
    query.prepare(
        QStringLiteral("REPLACE INTO control_directories ( path, files ) VALUES ( ?, ? )"));
    for (auto it = m_unsaved.cbegin(); it != m_unsaved.cend(); ++it) {
        query.bindValue(0, it.key());
        query.bindValue(1, it.value());
        if (!run(query))
            break; // a locked database stays locked for the next one
    }
    query.finish();
    if (!m_database.commit())
        m_database.rollback();
    m_unsaved.clear();
    m_unsavedBytes = 0;
}

void HRDigestTable::clear()
{
    m_digests.clear();
    m_unsaved.clear();
    m_unsavedBytes = 0;
    QSqlQuery query(m_database);
    query.prepare(QStringLiteral("DELETE FROM control_directories"));
    run(query);
}

void HRDigestTable::removeMissing()
{
    const QStringList missing = missingDirectories();
    QSqlQuery query(m_database);
    query.prepare(QStringLiteral("DELETE FROM control_directories WHERE path = ?"));
    for (const QString &directory : missing) {
        query.bindValue(0, directory);
        run(query);
    }
}

bool HRDigestTable::makeTable()
{
    QSqlQuery query(m_database);
    markAsOurs(query);
    query.prepare(QStringLiteral("CREATE TABLE IF NOT EXISTS control_directories "
                                 "( path TEXT PRIMARY KEY, files BLOB )"));
    return run(query);
}

/// All at once, which for a scan is quicker than one by one.
void HRDigestTable::readAll()
{
    QSqlQuery query(m_database);
    query.setForwardOnly(true);
    query.prepare(selectAll);
    if (!run(query))
        return;
    while (query.next())
        m_digests.insert(query.value(0).toString(), query.value(1).toByteArray());
    m_isCorrupt = m_isCorrupt || isCorruption(query.lastError());
}

bool HRDigestTable::run(QSqlQuery &query)
{
    if (query.exec())
        return true;
    m_isCorrupt = m_isCorrupt || isCorruption(query.lastError());
    // Whoever holds the database now may hold it for long, and there is a query for each directory.
    if (isBusy(query.lastError()))
        QSqlQuery(m_database).exec(QStringLiteral("PRAGMA busy_timeout=0"));
    return false;
}

QStringList HRDigestTable::missingDirectories()
{
    QSqlQuery query(m_database);
    query.setForwardOnly(true);
    query.prepare(QStringLiteral("SELECT path FROM control_directories"));
    QStringList missing;
    if (!run(query))
        return missing;
    while (query.next()) {
        const QString directory = query.value(0).toString();
        if (!QFileInfo(directory).isDir())
            missing.append(directory);
    }
    return missing;
}

} // namespace Hintreels
