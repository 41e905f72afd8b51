// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "index/HRIndex.h"

#include <memory>

namespace Hintreels {

struct HRSQLiteIndexPrivate;

/// An index that keeps in a small SQLite database which control file holds a key for a locale.
///
/// A look-up is one query instead of a look at every control file. The database is a cache: it is
/// filled anew at every start, unless the setting clearIndexKey is false, and deleted by close(),
/// unless removeIndexOnCloseKey is false. Content is still loaded from the control files. While no
/// database is open every operation is that of HRIndex, so hints keep working without the cache.
///
/// Differences from HRIndex: files without a locale serve the C locale only; of two files with the
/// same key and locale the one indexed last is served, whatever it holds by then; packages are not
/// mapped, so components are found in the setting componentDirectoryKey only.
///
/// Entries that another process keeps out by its lock, which is waited for a tenth of a second and
/// then not again for a second, are held in memory: they answer before what the database has, as
/// the newest, and go in with the next update that gets its lock, at the latest when a database
/// that stays is closed. Several processes may fill one database at the same time, but each start
/// that clears it takes the keys from the others until it has filled it again.
///
/// Messages go to Qt's debug output. GUI thread only. Two indexes with the same connection name
/// (the setting indexConnectionKey) must not be open at once.
class HINTREELS_EXPORT HRSQLiteIndex : public HRIndex
{
    Q_OBJECT

public:
    /// Opens nothing yet. The parameters are those of HRIndex.
    HRSQLiteIndex(HRContext *context, const QStringList &paths);
    /// Drops the connection and leaves the file where it is.
    ~HRSQLiteIndex() override;

    /// Opens or makes the database and sets it up.
    ///
    /// The file must be a regular one that belongs to this user alone, with nothing in it but our
    /// tables; a new one gets the mode 0600. A database that SQLite calls corrupt is made anew
    /// where it can be told to be ours, and left alone where not. After a failure the index stays
    /// closed and serves from memory.
    bool open() override;
    bool setup() override;
    /// Drops what is indexed, and what is held. Always true.
    bool clear() override;
    /// Closes the database, and removes it as removeIndexOnCloseKey says. Where it stays, what is
    /// held is tried to be stored once more. Always true.
    bool close() override;
    /// Closes the database and deletes its file. Always true.
    bool remove() override;

    HRXmlElement *retrieve(const QString &key, const QLocale &locale, QString &directory,
        int &depth, HRXmlElement *&root) override;

    /// Stores the entry's key; outside of an update only the file is remembered, in memory.
    ///
    /// The entry lives until indexControlFile(), which hands it in, returns.
    /// @return false where the entry is refused, which one message tells, and where it is held
    /// because of another's lock. Where only the file is refused the key is stored all the same:
    /// such a key is listed by keys() and never found.
    bool store(
        HRXmlElement *entry, const QLocale &locale, const QString &filePath, int depth) override;

    /// Brackets one transaction. Brackets do not nest: the first endUpdate() ends the update.
    void startUpdate() override;
    /// Commits the transaction, where one is open.
    void endUpdate() override;

    /// Every key, once for each locale; from the database while it is open.
    QStringList keys() override;

    /// Parses a control file and stores its entries, in an update of its own if there is none.
    void indexControlFile(const QString &filePath, const QString &packagePath) override;

private:
    void storeHeld();
    void closeDatabase();

    std::unique_ptr<HRSQLiteIndexPrivate> d;
};

} // namespace Hintreels
