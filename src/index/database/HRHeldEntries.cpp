// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/database/HRHeldEntries_p.h"

#include <utility>

namespace Hintreels {

void HRHeldEntries::add(HRIndexEntry entry)
{
    if (!m_depths.contains(entry.filePath))
        m_depths.insert(entry.filePath, entry.depth);
    entry.depth = m_depths.value(entry.filePath);
    const QPair<QString, QString> name(entry.key, entry.locale);
    const auto known = m_indexes.constFind(name);
    if (known != m_indexes.cend()) {
        m_entries[*known] = std::move(entry);
        return;
    }
    m_indexes.insert(name, m_entries.size());
    m_entries.push_back(std::move(entry));
}

const HRIndexEntry *HRHeldEntries::find(const QString &key, const QString &locale) const
{
    if (m_entries.empty())
        return nullptr;
    const auto found = m_indexes.constFind({ key, locale });
    return found == m_indexes.cend() ? nullptr : &m_entries[*found];
}

QStringList HRHeldEntries::keys() const
{
    QStringList keys;
    for (const HRIndexEntry &entry : m_entries)
        keys.append(entry.key);
    return keys;
}

std::vector<HRIndexEntry> HRHeldEntries::take()
{
    m_indexes.clear();
    m_depths.clear();
    return std::exchange(m_entries, {});
}

} // namespace Hintreels
