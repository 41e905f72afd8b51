// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/HRIndexUpdate_p.h"

#include "index/HRIndexDatabase_p.h"
#include "index/HRPackageRows_p.h"

#include <QDebug>
#include <QSqlDriver>
#include <QSqlError>
#include <QVariant>

namespace Hintreels {

HRIndexUpdate::HRIndexUpdate(const QSqlDatabase &database, HRPackageRows &rows)
    : m_database(database)
    , m_rows(rows)
    , m_selectPackage(database)
    , m_insertPackage(database)
    , m_replaceItem(database)
{
}

void HRIndexUpdate::begin()
{
    m_isComplete = true;
    m_rows.refresh();
    if (m_preparedAtSchema == m_rows.schemaVersion())
        return;
    m_preparedAtSchema.reset();
    if (prepareAll())
        m_preparedAtSchema = m_rows.schemaVersion();
}

bool HRIndexUpdate::store(
    const QString &key, const QString &locale, const QString &filePath, int depth)
{
    m_replaceItem.bindValue(0, key);
    m_replaceItem.bindValue(1, locale);
    m_replaceItem.bindValue(2, packageRow(filePath, depth));
    if (m_replaceItem.exec())
        return true;
    m_isComplete = false;
    reportSqlError("Could not insert item:", m_replaceItem.lastError());
    return false;
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

int HRIndexUpdate::packageRow(const QString &filePath, int depth)
{
    if (const std::optional<int> known = m_rows.row(filePath))
        return *known;
    const int row = insertPackage(filePath, depth);
    if (row >= 0)
        m_rows.add(filePath, row);
    return row;
}

int HRIndexUpdate::insertPackage(const QString &filePath, int depth)
{
    m_insertPackage.bindValue(0, filePath);
    m_insertPackage.bindValue(1, depth);
    if (!m_insertPackage.exec()) {
        reportSqlError("Could not insert package:", m_insertPackage.lastError());
        return -1;
    }
    if (m_database.driver()->hasFeature(QSqlDriver::LastInsertId))
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

} // namespace Hintreels
