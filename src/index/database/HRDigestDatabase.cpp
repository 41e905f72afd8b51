// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/database/HRDigestDatabase_p.h"

#include <QDebug>
#include <QFile>

#include <utility>

namespace Hintreels {

HRDigestDatabase::HRDigestDatabase(HRCacheDatabase::SetUp setUp)
    : m_cache([this, setUp = std::move(setUp)] {
        if (setUp())
            return true;
        m_table.reset();
        return false;
    })
{
}

bool HRDigestDatabase::open(const HRDatabasePlace &place)
{
    leave();
    m_table.reset();
    m_isCorrupt = false;
    if (m_cache.open(place))
        return true;
    return (m_cache.isCorrupt() || (m_isCorrupt && !m_isRebuilt)) && openAnew();
}

bool HRDigestDatabase::setUp()
{
    if (!m_cache.isOpen())
        return true;
    m_table.emplace(m_cache.connection().handle());
    if (m_table->isUsable())
        return true;
    m_isCorrupt = m_table->isCorrupt();
    if (m_isCorrupt)
        m_cache.connection().holdCorruptFile();
    m_table.reset();
    return false;
}

void HRDigestDatabase::clear()
{
    m_directory.clear();
    m_digest = HRDirectoryDigest();
    m_isChanged = false;
    if (m_table)
        m_table->clear();
}

void HRDigestDatabase::close()
{
    save();
    m_table.reset();
    m_cache.close();
}

void HRDigestDatabase::remove()
{
    m_table.reset();
    m_cache.remove();
}

bool HRDigestDatabase::enter(const QString &directory)
{
    if (directory == m_directory)
        return false;
    leave();
    m_directory = directory;
    load(directory);
    healIfCorrupt();
    return true;
}

void HRDigestDatabase::put(std::string_view name, const HRStoredFile &file)
{
    m_digest.put(name, file);
    m_isChanged = true;
}

void HRDigestDatabase::drop(std::string_view name)
{
    m_digest.remove(name);
    m_isChanged = true;
}

void HRDigestDatabase::save()
{
    leave();
    if (m_table)
        m_table->flush();
    healIfCorrupt();
}

void HRDigestDatabase::removeMissing()
{
    if (m_table)
        m_table->removeMissing();
}

void HRDigestDatabase::load(const QString &directory)
{
    const QByteArray stored = m_table ? m_table->load(directory) : QByteArray();
    if (stored.isEmpty())
        return;
    std::optional<HRDirectoryDigest> digest = HRDirectoryDigest::decoded(stored);
    m_isCorrupt = !digest;
    if (digest)
        m_digest = std::move(*digest);
}

void HRDigestDatabase::leave()
{
    if (m_directory.isEmpty())
        return;
    for (const QByteArray &name : m_digest.untouched()) {
        if (!stampOfFile(QFile::encodeName(m_directory) + name))
            drop({ name.constData(), size_t(name.size()) });
    }
    if (m_table && m_isChanged)
        m_table->save(m_directory, m_digest.encoded());
    m_digest = HRDirectoryDigest();
    m_directory.clear();
    m_isChanged = false;
}

bool HRDigestDatabase::openAnew()
{
    qDebug().noquote() << "Index database is damaged. It is made anew";
    m_isCorrupt = false;
    m_isRebuilt = true;
    return m_cache.openAnew();
}

/// Once in a run: a disk that corrupts what was just written is not worth a second try.
void HRDigestDatabase::healIfCorrupt()
{
    if (!m_isCorrupt && !(m_table && m_table->isCorrupt()))
        return;
    m_isCorrupt = false;
    m_table.reset();
    if (m_cache.isOpen())
        m_cache.connection().holdCorruptFile();
    m_cache.close();
    if (m_isRebuilt)
        m_cache.connection().removeCorruptFile();
    else
        openAnew();
}

} // namespace Hintreels
