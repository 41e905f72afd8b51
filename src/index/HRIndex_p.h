// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "context/HRContext.h"
#include "files/HRDirectoryListing_p.h"
#include "files/HRRegularFile_p.h"
#include "index/HRPackageDepth_p.h"
#include "index/HRPackageMap_p.h"
#include "index/control/HRControlFileProbe_p.h"
#include "index/control/HRControlPrefilter_p.h"
#include "index/control/HRControlRecords_p.h"

#include <QPointer>
#include <QStringList>

#include <functional>
#include <optional>
#include <string_view>

namespace Hintreels {

class HRIndex;

/// A file of a listing that is being indexed, and what looking at it has brought.
struct HRListedControlFile
{
    QString path;
    QString name;
    std::string_view nativeName = {}; // as the operating system spells it
    std::optional<HRRegularFile> file = {}; // open, where the index reads each file
    std::optional<HRFileStamp> stamp = {}; // none of a Qt resource
};

/// What an index in memory knows; HRPackageIndex fills it from its database.
struct HRIndexPrivate
{
    /// Told of each file that may be read, just before it is indexed; false passes it over.
    using Wanted
        = std::function<bool(const QString &path, const std::optional<HRFileStamp> &stamp)>;

    explicit HRIndexPrivate(HRIndex &owner)
        : index(owner)
    {
    }

    /// That of an index, for the classes of this library.
    static HRIndexPrivate &of(HRIndex &index);

    HRIndex &index;
    QPointer<HRContext> context;
    QStringList paths;
    HRControlRecords records;
    HRControlErrors errors; // since they were last taken out
    HRControlPrefilter prefilter{ errors };
    HRPackageMap packages;
    HRControlFileProbe probe;
    HRPackageDepth depth;
    bool inUpdate = false;
    bool opensListedFiles = true; // to read them at once; else their stamps are enough
    QStringList componentQuestion; // the last one, until another package is mapped
    QStringList componentPaths; // the answer

    /// Makes the index read its settings from these, which may be null.
    void follow(HRContext *settings);

    /// Indexes the files of one control directory of one package: calls indexControlFile() for each
    /// that may be read and is wanted. As the listing is open, each is looked at once only, and
    /// what all have in common is not asked again.
    /// @param packagePath canonical, as the listing's directory must be
    void indexListing(
        const HRDirectoryListing &listing, const QString &packagePath, const Wanted &isWanted);

    /// The file that indexListing() is calling indexControlFile() for, if it is this one.
    HRListedControlFile *listed(const QString &path) const
    {
        return m_listed && m_listed->path == path ? m_listed : nullptr;
    }

    /// Whether the first element of the file, which may be a Qt resource, is that of control files.
    bool isControlFile(const QString &path);

    /// As HRPackageDepth counts them.
    std::optional<int> levels(const QString &filePath, const QString &packagePath)
    {
        return depth.levels(filePath, packagePath, listed(filePath));
    }

    /// A record of the file that levels() was asked for last.
    HRControlRecord record(const QString &path, int levels) const;

    /// Maps the package of a file that was taken in; of those in a listing, once.
    void mapPackageOf(const QString &filePath, const QString &packagePath);

private:
    bool look(const HRDirectoryListing &listing, const HRListedFile &entry);
    bool isControlFile(HRRegularFile &file);

    HRListedControlFile *m_listed = nullptr;
    QString m_mappedPackage; // by a file of the listing, until the suffix of packages changes
};

} // namespace Hintreels
