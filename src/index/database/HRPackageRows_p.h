// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>

#include <optional>

namespace Hintreels {

/// The keys of the rows in the table `packages`, by control file.
///
/// The table has no index on its paths, so asking it for each file costs time that grows with the
/// square of the files. This copy is read once, and again only when another connection, a statement
/// on the schema, or a statement on this connection that was not told has changed the database.
class HRPackageRows
{
public:
    explicit HRPackageRows(const QSqlDatabase &database);

    /// Makes the copy current for other connections' changes; to be called when an update begins.
    void refresh();

    /// Makes the copy current for changes on this connection.
    void check();

    /// Tells of a change to one row of this database that leaves the copy current.
    void noteOwnChange() { ++m_changes; }

    /// Makes the next refresh() read the table, whatever the versions say.
    void forget() { m_readAtData = -1; }

    /// That of the schema when the copy was made current: it changes with each table.
    qint64 schemaVersion() const { return m_readAtSchema; }

    std::optional<int> row(const QString &path) const;
    void add(const QString &path, int row) { m_rows.insert(path, row); }

private:
    qint64 number(QSqlQuery &query);
    void load();

    QSqlDatabase m_database;
    QSqlQuery m_dataVersion;
    QSqlQuery m_schemaVersion;
    QSqlQuery m_totalChanges;
    QHash<QString, int> m_rows;
    qint64 m_readAtData = -1;
    qint64 m_readAtSchema = -1;
    qint64 m_changes = -1; // of rows, on this connection, as far as the copy knows
};

} // namespace Hintreels
