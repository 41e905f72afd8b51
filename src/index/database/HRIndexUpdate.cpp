// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/database/HRIndexUpdate_p.h"

#include "index/database/HRIndexDatabase_p.h"

#include <QDebug>
#include <QSqlDriver>
#include <QSqlError>
#include <QVariant>

#include <utility>

namespace Hintreels {

HRIndexUpdate::HRIndexUpdate(HRIndexDatabase &database, HRHeldEntries &held)
    : m_database(database)
    , m_held(held)
    , m_rows(database.handle())
    , m_selectPackage(database.handle())
    , m_insertPackage(database.handle())
    , m_replaceItem(database.handle())
{
}

void HRIndexUpdate::begin()
{
    m_expectedFile.clear();
    m_isBegun = m_database.lock("Could not query package table:");
    m_isBusy = !m_isBegun;
    if (m_isBusy)
        return;
    m_rows.refresh();
    if (m_preparedAtSchema != m_rows.schemaVersion()) {
        m_preparedAtSchema.reset();
        if (prepareAll())
            m_preparedAtSchema = m_rows.schemaVersion();
    }
    for (const HRIndexEntry &entry : m_held.take())
        store(entry);
}

void HRIndexUpdate::expect(const QString &filePath)
{
    if (m_isBegun)
        m_rows.check();
    m_expectedFile = filePath;
}

bool HRIndexUpdate::store(const HRIndexEntry &entry)
{
    if (!m_isBusy && write(entry)) {
        m_stored.push_back(entry);
        return true;
    }
    if (m_isBusy)
        m_held.add(entry);
    return false;
}

void HRIndexUpdate::end()
{
    if (std::exchange(m_isBegun, false) && !m_database.commit("Could not insert item:"))
        holdStored();
    m_stored.clear();
}

void HRIndexUpdate::forget()
{
    m_rows.forget();
    m_stored.clear();
    m_expectedFile.clear();
}

bool HRIndexUpdate::prepareAll()
{
    bool isPrepared = prepare(m_selectPackage, "SELECT pkey FROM packages WHERE ppath = ?",
        "Could not prepare package select query:");
    isPrepared &= prepare(m_insertPackage, "INSERT INTO packages ( ppath, depth ) VALUES ( ?, ? )",
        "Could not prepare package insert query:");
    isPrepared &= prepare(m_replaceItem,
        "REPLACE INTO hintreels ( hrkey, tlocale, pkey ) VALUES ( ?, ?, ? )",
        "Could not prepare hintreel replace query:");
    return isPrepared;
}

bool HRIndexUpdate::prepare(QSqlQuery &query, const char *statement, const char *message)
{
    query.setForwardOnly(true);
    if (query.prepare(QLatin1String(statement)))
        return true;
    reportSqlError(message, query.lastError());
    return false;
}

bool HRIndexUpdate::write(const HRIndexEntry &entry)
{
    const std::optional<int> row = packageRow(entry);
    if (!row)
        return false;
    m_replaceItem.bindValue(0, entry.key);
    m_replaceItem.bindValue(1, entry.locale);
    m_replaceItem.bindValue(2, *row);
    if (m_replaceItem.exec()) {
        m_rows.noteOwnChange();
        return true;
    }
    // In a transaction that the host has begun itself, writing asks for the lock.
    m_isBusy = isBusy(m_replaceItem.lastError());
    reportSqlError("Could not insert item:", m_replaceItem.lastError());
    return false;
}

/// The key of the file's row; nothing where another's lock keeps it out.
std::optional<int> HRIndexUpdate::packageRow(const HRIndexEntry &entry)
{
    if (entry.filePath != m_expectedFile)
        m_rows.check();
    const std::optional<int> known = m_rows.row(entry.filePath);
    return known ? known : insertPackage(entry);
}

std::optional<int> HRIndexUpdate::insertPackage(const HRIndexEntry &entry)
{
    m_insertPackage.bindValue(0, entry.filePath);
    m_insertPackage.bindValue(1, entry.depth);
    const bool isInserted = m_insertPackage.exec();
    if (!isInserted) {
        reportSqlError("Could not insert package:", m_insertPackage.lastError());
        m_isBusy = isBusy(m_insertPackage.lastError());
    }
    if (m_isBusy)
        return std::nullopt;
    const int row = insertedRow(entry.filePath);
    if (isInserted) {
        m_rows.noteOwnChange();
        m_rows.add(entry.filePath, row);
    }
    return row;
}

/// What the database calls the row inserted last, 0 where it was not; the item then stands without
/// a file.
int HRIndexUpdate::insertedRow(const QString &filePath)
{
    if (m_database.handle().driver()->hasFeature(QSqlDriver::LastInsertId))
        return m_insertPackage.lastInsertId().toInt();
    qDebug().noquote() << "DB doesn't support lastInsertId";
    return selectInserted(filePath);
}

int HRIndexUpdate::selectInserted(const QString &filePath)
{
    m_selectPackage.bindValue(0, filePath);
    if (!m_selectPackage.exec()) {
        reportSqlError("Could not query package table after insert:", m_selectPackage.lastError());
        return -1;
    }
    const int row = m_selectPackage.next() ? m_selectPackage.value(0).toInt() : -1;
    m_selectPackage.finish();
    return row;
}

/// Holds what was rolled back, as older than what was held before.
void HRIndexUpdate::holdStored()
{
    m_rows.forget();
    const std::vector<HRIndexEntry> newer = m_held.take();
    for (const HRIndexEntry &entry : m_stored)
        m_held.add(entry);
    for (const HRIndexEntry &entry : newer)
        m_held.add(entry);
}

} // namespace Hintreels
