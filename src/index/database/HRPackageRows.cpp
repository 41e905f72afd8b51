// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/database/HRPackageRows_p.h"

#include "index/database/HRIndexDatabase_p.h"

#include <QSqlError>
#include <QVariant>

namespace Hintreels {

HRPackageRows::HRPackageRows(const QSqlDatabase &database)
    : m_database(database)
    , m_dataVersion(database)
    , m_schemaVersion(database)
    , m_totalChanges(database)
{
    m_dataVersion.prepare(QStringLiteral("PRAGMA data_version"));
    m_schemaVersion.prepare(QStringLiteral("PRAGMA schema_version"));
    m_totalChanges.prepare(QStringLiteral("SELECT total_changes()"));
}

void HRPackageRows::refresh()
{
    const qint64 data = number(m_dataVersion);
    const qint64 schema = number(m_schemaVersion);
    if (data == m_readAtData && schema == m_readAtSchema)
        return;
    load();
    m_readAtData = data;
    m_readAtSchema = schema;
    m_changes = number(m_totalChanges);
}

void HRPackageRows::check()
{
    const qint64 changes = number(m_totalChanges);
    if (changes == m_changes)
        return;
    load();
    m_changes = changes;
}

std::optional<int> HRPackageRows::row(const QString &path) const
{
    const auto found = m_rows.constFind(path);
    return found == m_rows.cend() ? std::nullopt : std::optional<int>(*found);
}

qint64 HRPackageRows::number(QSqlQuery &query)
{
    const bool known = query.exec() && query.next();
    const qint64 number = known ? query.value(0).toLongLong() : 0;
    query.finish();
    return number;
}

void HRPackageRows::load()
{
    m_rows.clear();
    QSqlQuery query(m_database);
    query.setForwardOnly(true);
    if (!query.exec(QStringLiteral("SELECT ppath, pkey FROM packages ORDER BY pkey DESC")))
        reportSqlError("Could not query package table:", query.lastError());
    // The first of several rows for a file is the one that a search would find.
    while (query.next())
        m_rows.insert(query.value(0).toString(), query.value(1).toInt());
}

} // namespace Hintreels
