// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>

#include <optional>

namespace Hintreels {

class HRPackageRows;

/// The statements that a transaction, which has been begun, stores entries with.
class HRIndexUpdate
{
public:
    /// @param rows must outlive this
    HRIndexUpdate(const QSqlDatabase &database, HRPackageRows &rows);

    /// Begins an update. What cannot be prepared fails again when it is used.
    void begin();

    /// Stores which file holds a key for a locale; an older row of both is replaced.
    /// @param locale as QLocale::name() spells it
    bool store(const QString &key, const QString &locale, const QString &filePath, int depth);

    /// Whether every entry since begin() could be stored.
    bool isComplete() const { return m_isComplete; }

private:
    bool prepareAll();
    bool prepare(QSqlQuery &query, const char *statement, const char *message);
    int packageRow(const QString &filePath, int depth);
    int insertPackage(const QString &filePath, int depth);
    int selectInserted(const QString &filePath);

    QSqlDatabase m_database;
    HRPackageRows &m_rows;
    QSqlQuery m_selectPackage;
    QSqlQuery m_insertPackage;
    QSqlQuery m_replaceItem;
    std::optional<qint64> m_preparedAtSchema; // for which version of the schema, if all could be
    bool m_isComplete = true;
};

} // namespace Hintreels
