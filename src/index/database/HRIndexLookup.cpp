// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/database/HRIndexLookup_p.h"

#include "index/database/HRIndexDatabase_p.h"

#include <QSqlError>
#include <QVariant>

namespace Hintreels {

namespace {

constexpr char Lookup[]
    = "SELECT packages.ppath, packages.depth FROM hintreels, packages WHERE hintreels.hrkey = ? "
      "AND hintreels.tlocale = ? AND hintreels.pkey = packages.pkey";

} // namespace

HRIndexLookup::HRIndexLookup(const QSqlDatabase &database)
    : m_database(database)
    , m_query(database)
{
    m_query.setForwardOnly(true);
}

std::optional<HRIndexLookup::File> HRIndexLookup::find(const QString &key, const QString &locale)
{
    std::optional<File> file;
    const bool asked = (m_isPrepared && ask(key, locale)) || askAnew(key, locale);
    if (asked && m_query.next())
        file = File{ m_query.value(0).toString(), m_query.value(1).toInt() };
    m_query.finish(); // gives the lock back
    return file;
}

std::optional<int> HRIndexLookup::depthOf(const QString &path)
{
    QSqlQuery query(m_database);
    query.setForwardOnly(true);
    query.prepare(QStringLiteral("SELECT depth FROM packages WHERE ppath = ?"));
    query.bindValue(0, path);
    if (!query.exec() || !query.next())
        return std::nullopt;
    return query.value(0).toInt();
}

bool HRIndexLookup::ask(const QString &key, const QString &locale)
{
    m_query.bindValue(0, key);
    m_query.bindValue(1, locale);
    return m_query.exec();
}

bool HRIndexLookup::askAnew(const QString &key, const QString &locale)
{
    m_isPrepared = m_query.prepare(QLatin1String(Lookup));
    if (!m_isPrepared)
        reportSqlError("Could not select element:", m_query.lastError());
    if (ask(key, locale))
        return true;
    reportSqlError("Could not retrieve item:", m_query.lastError());
    return false;
}

} // namespace Hintreels
