// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>

namespace Hintreels {

class HRPackageRows;

/// The statements that a transaction, which has been begun, stores entries with.
class HRIndexUpdate
{
public:
    /// Prepares; what cannot be prepared fails again when it is used.
    /// @param rows must outlive this
    HRIndexUpdate(const QSqlDatabase &database, HRPackageRows &rows);

    /// Stores which file holds a key for a locale; an older row of both is replaced.
    /// @param locale as QLocale::name() spells it
    bool store(const QString &key, const QString &locale, const QString &filePath, int depth);

    /// Whether every entry could be stored.
    bool isComplete() const { return m_isComplete; }

private:
    void prepare(QSqlQuery &query, const char *statement, const char *message);
    int packageRow(const QString &filePath, int depth);
    int insertPackage(const QString &filePath, int depth);
    int selectInserted(const QString &filePath);

    QSqlDatabase m_database;
    HRPackageRows &m_rows;
    QSqlQuery m_selectPackage;
    QSqlQuery m_insertPackage;
    QSqlQuery m_replaceItem;
    bool m_isComplete = true;
};

} // namespace Hintreels
