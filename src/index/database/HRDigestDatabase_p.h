// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "index/database/HRCacheDatabase_p.h"
#include "index/database/HRDigestTable_p.h"
#include "index/database/HRDirectoryDigest_p.h"

#include <QString>

#include <optional>
#include <string_view>

namespace Hintreels {

/// What is known of control files, kept in a database across runs and looked up directory by
/// directory.
///
/// A database that is found corrupt is made anew, once in a run; while none is open, what is put in
/// is known until the directory is left.
class HRDigestDatabase
{
public:
    /// @param setUp calls setUp(), in the way of the index that owns this
    explicit HRDigestDatabase(HRCacheDatabase::SetUp setUp);

    static QString tableName() { return HRDigestTable::tableName(); }

    bool open(const HRDatabasePlace &place);

    /// Makes the table in an open database; true in any case where none is open.
    bool setUp();

    /// Forgets everything, without closing the database.
    void clear();

    /// Writes what is not yet written, and closes the database.
    void close();

    /// Closes the database and deletes its file.
    void remove();

    /// Turns to a directory, given with its slash; what is known of the one before is saved, less
    /// the files in it that are gone. False where it is the same.
    bool enter(const QString &directory);

    /// The file as it is known, if its stamp is still this one.
    bool find(std::string_view name, const HRFileStamp &stamp, HRStoredFile &file)
    {
        return m_digest.find(name, stamp, file);
    }

    void put(std::string_view name, const HRStoredFile &file);
    void drop(std::string_view name);

    /// Leaves the directory, and writes what is not yet written.
    void save();

    /// Forgets the directories that are no longer there.
    void removeMissing();

private:
    void load(const QString &directory);
    void leave();
    bool openAnew();
    void healIfCorrupt();

    HRCacheDatabase m_cache;
    std::optional<HRDigestTable> m_table; // none while the database is closed
    QString m_directory; // the one whose files are being looked up, with its slash
    HRDirectoryDigest m_digest; // of that directory
    bool m_isChanged = false; // whether the digest differs from the stored one
    bool m_isCorrupt = false;
    bool m_isRebuilt = false;
};

} // namespace Hintreels
