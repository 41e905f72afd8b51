// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/database/HRCacheDatabase_p.h"

#include "context/HRContext.h"
#include "context/printable_p.h"
#include "context/setting_p.h"

#include <QDebug>
#include <QFile>

#include <utility>

namespace Hintreels {

QString indexConnection(const HRContext &context)
{
    return setting(context, indexConnectionKey, QStringLiteral("__Hintreels_Index__"));
}

HRCacheDatabase::HRCacheDatabase(SetUp setUp)
    : m_setUp(std::move(setUp))
{
}

bool HRCacheDatabase::open(const HRDatabasePlace &place)
{
    close();
    m_place = place;
    m_openedPath.clear();
    return !place.path.isEmpty() && openPlace();
}

// A process that is killed while it fills the database may leave it corrupt; without a new one no
// later start would come through.
bool HRCacheDatabase::openAnew()
{
    m_database.removeCorruptFile();
    return openPlace();
}

void HRCacheDatabase::remove()
{
    close();
    if (!m_openedPath.isEmpty() && QFile::remove(m_openedPath))
        m_database.forgetFile();
}

bool HRCacheDatabase::openPlace()
{
    qDebug().noquote() << printable(QStringLiteral("Creating index database in ") + m_place.path);
    if (!m_database.open(m_place.connection, m_place.path, m_place.tables, m_place.isOwn)) {
        if (!m_database.isCorrupt())
            qDebug().noquote() << "Could not open index database. Index will be disabled";
        return false;
    }
    m_openedPath = m_place.path;
    if (m_setUp())
        return true;
    close();
    m_openedPath.clear(); // never to be removed: it may be another's
    return false;
}

} // namespace Hintreels
