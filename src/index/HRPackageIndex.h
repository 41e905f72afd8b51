// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "index/HRIndex.h"

#include <memory>

namespace Hintreels {

struct HRPackageIndexPrivate;

/// An index for many packages: it answers as HRIndex does, and starts in about the time of a walk
/// through the directories.
///
/// What is known of each control file is kept in a database in the user's cache directory, and a
/// file is read again only when it is new or when its size or one of its times has changed. Only
/// files that indexControlFile() has named in this run are answered from. Edits are seen by the
/// next look-up, packages are mapped, and files without a locale serve every locale.
///
/// The database is written between events while the program runs; nothing depends on close().
/// Several processes may share it. A corrupt one is made anew, which one line in Qt's debug output
/// tells; without any, the index works from memory. The settings clearIndexKey and
/// removeIndexOnCloseKey are not read. The file lies in the setting persistentDirectoryKey, else in
/// the user's cache location, under the setting indexFileNameKey, else as
/// HintreelsPackages.sqlite. Two indexes with the same connection name (the setting
/// indexConnectionKey) must not be open at once.
class HINTREELS_EXPORT HRPackageIndex : public HRIndex
{
    Q_OBJECT

public:
    /// Opens nothing yet. The parameters are those of HRIndex.
    HRPackageIndex(HRContext *context, const QStringList &paths);
    ~HRPackageIndex() override;

    bool open() override;
    /// Makes the table in an open database; true in any case where none is open.
    bool setup() override;
    /// Forgets what was kept of earlier runs. Files named in this run stay known: true.
    bool clear() override;
    /// Closes the database and leaves its file. Always true.
    bool close() override;
    bool remove() override;

    void indexControlFile(const QString &filePath, const QString &packagePath) override;

private:
    void saveSoon();

    std::unique_ptr<HRPackageIndexPrivate> d;
};

} // namespace Hintreels
