// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "index/database/HRIndexDatabase_p.h"

#include <QString>
#include <QStringList>

#include <functional>

class HRContext;

namespace Hintreels {

/// Where a database lies, and what may be in it.
struct HRDatabasePlace
{
    QString path; // absolute; empty where the settings give none
    QString connection;
    QStringList tables;
    bool isOwn = false; // whether whatever lies there is ours, even where nothing in it tells
};

/// The name that the settings give the connection of an index.
QString indexConnection(const HRContext &context);

/// The database of an index, which can always be filled again: it is opened where it is ours, and
/// made anew where it is corrupt. Messages go to Qt's debug output.
class HRCacheDatabase
{
public:
    /// Makes the tables of the open database; where it returns false no query may be left.
    using SetUp = std::function<bool()>;

    explicit HRCacheDatabase(SetUp setUp);

    /// Opens a database, or makes it, and sets it up. Stays closed after a failure.
    bool open(const HRDatabasePlace &place);

    /// Deletes a corrupt database, and opens a new one in its place, or that which another process
    /// has made meanwhile.
    bool openAnew();

    /// Closes the database; queries must be gone.
    void close() { m_database.close(); }

    /// Closes the database and deletes the file that was opened last.
    void remove();

    /// Whether the database is, or the last one that could not be opened was, corrupt and ours.
    bool isCorrupt() const { return !m_place.path.isEmpty() && m_database.isCorrupt(); }

    bool isOpen() const { return m_database.isOpen(); }
    HRIndexDatabase &connection() { return m_database; }

private:
    bool openPlace();

    SetUp m_setUp;
    HRIndexDatabase m_database;
    HRDatabasePlace m_place;
    QString m_openedPath; // survives closing, so that the file can still be removed
};

} // namespace Hintreels
