// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>

namespace Hintreels {

class HRPackageRows;

/// The statements that one transaction stores entries with.
class HRIndexUpdate
{
public:
    /// Begins the transaction and prepares; what cannot be prepared fails again when it is used.
    /// @param rows must outlive this
    HRIndexUpdate(const QSqlDatabase &database, HRPackageRows &rows);

    /// Commits what was stored; where that fails, nothing of it stays.
    void commit();

    /// Stores which file holds a key for a locale; an older row of both is replaced.
    /// @param locale as QLocale::name() spells it
    bool store(const QString &key, const QString &locale, const QString &filePath, int depth);

private:
    void begin();
    void prepare(QSqlQuery &query, const char *statement, const char *message);
    int packageRow(const QString &filePath, int depth);
    int insertPackage(const QString &filePath, int depth);
    int selectInserted(const QString &filePath);

    QSqlDatabase m_database;
    HRPackageRows &m_rows;
    QSqlQuery m_selectPackage;
    QSqlQuery m_insertPackage;
    QSqlQuery m_replaceItem;
};

} // namespace Hintreels
