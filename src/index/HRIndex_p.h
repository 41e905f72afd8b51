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

#include <optional>

namespace Hintreels {

class HRIndex;

/// A file that a scan has listed and names next, and what looking at it has brought.
struct HRPreparedFile
{
    QString path;
    const HRListedFile *listed = nullptr;
    std::string_view nativeName = {}; // as the operating system spells it
    std::optional<HRRegularFile> file = {};
    std::optional<HRFileStamp> stamp = {};
    QString mappedPackage = {}; // by a file of the same scan, until the suffix of packages changes

    bool is(const QString &other) const { return listed && path == other; }

    /// @param directory with its slash
    void expect(
        const QString &directory, const HRDirectoryListing &listing, const HRListedFile &next)
    {
        path.resize(0); // keeps its memory
        path += directory;
        path += next.name;
        listed = &next;
        nativeName = listing.nativeName(next);
    }

    void forget()
    {
        listed = nullptr;
        file.reset();
        stamp.reset();
        mappedPackage.clear();
    }
};

/// What an index in memory knows; HRPackageIndex fills it from its database.
struct HRIndexPrivate
{
    QPointer<HRContext> context;
    QStringList paths;
    HRControlRecords records;
    HRControlPrefilter reader;
    HRPackageMap packages;
    HRControlFileProbe probe;
    HRPackageDepth depth;
    bool inUpdate = false;
    HRPreparedFile prepared;
    QStringList componentQuestion; // the last one, until another package is mapped
    QStringList componentPaths; // the answer

    /// Makes the index read its settings from these, which may be null.
    void follow(HRContext *settings, HRIndex *index);

    /// Whether the first element of the file, which may be a Qt resource, is that of control files.
    bool isControlFile(const QString &path);

    /// As HRPackageDepth counts them.
    std::optional<int> levels(const QString &filePath, const QString &packagePath)
    {
        return depth.levels(filePath, packagePath, prepared.is(filePath));
    }

    /// A record of the file that levels() was asked for last.
    HRControlRecord record(const QString &path, int levels) const;

private:
    bool isControlFile(HRRegularFile &file);
};

} // namespace Hintreels
