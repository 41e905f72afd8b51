// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QPair>
#include <QString>
#include <QStringList>

#include <vector>

namespace Hintreels {

/// Which file holds a key for a locale, as the database of HRSQLiteIndex stores it.
struct HRIndexEntry
{
    QString key;
    QString locale; // as QLocale::name() spells it
    QString filePath;
    int depth; // levels below the package directory
};

/// Entries that the database does not take for now, because another program has locked it.
///
/// They follow the rules of its rows: of two with the same key and locale the newer one stays, and
/// a file keeps the depth at which it came first.
class HRHeldEntries
{
public:
    void add(HRIndexEntry entry);

    bool isEmpty() const { return m_entries.empty(); }

    /// The newest entry of a key and locale; null where none is held. Valid until the next change.
    const HRIndexEntry *find(const QString &key, const QString &locale) const;

    /// The key of each entry.
    QStringList keys() const;

    /// Hands out all entries and holds none.
    std::vector<HRIndexEntry> take();

    void clear() { take(); }

private:
    std::vector<HRIndexEntry> m_entries;
    QHash<QPair<QString, QString>, size_t> m_indexes; // by key and locale
    QHash<QString, int> m_depths; // by file
};

} // namespace Hintreels
