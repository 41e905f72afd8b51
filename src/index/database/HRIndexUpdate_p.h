// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "index/database/HRHeldEntries_p.h"
#include "index/database/HRPackageRows_p.h"

#include <QSqlQuery>
#include <QString>

#include <optional>
#include <vector>

namespace Hintreels {

class HRIndexDatabase;

/// Stores entries in the database, one transaction at a time.
///
/// What another program's lock keeps out, at the beginning, on the way or at the commit, is held,
/// and stored by the next transaction that gets its lock.
class HRIndexUpdate
{
public:
    /// @param database, held must outlive this
    HRIndexUpdate(HRIndexDatabase &database, HRHeldEntries &held);

    /// Begins a transaction, where no lock is in the way, and stores what is held.
    /// A statement that cannot be prepared fails again when it is used.
    void begin();

    /// Says that the entries up to end() come from this file, one after the other, so that its row
    /// has to be looked for only once.
    void expect(const QString &filePath);

    /// Stores which file holds a key for a locale; an older row of both is replaced. False where
    /// the entry is held, and where it is refused.
    bool store(const HRIndexEntry &entry);

    void end();

    /// To be called when the tables were emptied or dropped.
    void forget();

private:
    bool prepareAll();
    bool prepare(QSqlQuery &query, const char *statement, const char *message);
    bool write(const HRIndexEntry &entry);
    std::optional<int> packageRow(const HRIndexEntry &entry);
    std::optional<int> insertPackage(const HRIndexEntry &entry);
    int insertedRow(const QString &filePath);
    int selectInserted(const QString &filePath);
    void holdStored();

    HRIndexDatabase &m_database;
    HRHeldEntries &m_held;
    HRPackageRows m_rows;
    QSqlQuery m_selectPackage;
    QSqlQuery m_insertPackage;
    QSqlQuery m_replaceItem;
    std::optional<qint64> m_preparedAtSchema; // for which version of the schema, if all could be
    std::vector<HRIndexEntry> m_stored; // in this transaction
    QString m_expectedFile;
    bool m_isBegun = false; // a transaction is
    bool m_isBusy = false; // by another's lock, from then on until the end
};

} // namespace Hintreels
