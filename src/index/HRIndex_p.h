// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "context/HRContext.h"
#include "index/HRControlFileProbe_p.h"
#include "index/HRControlReader_p.h"
#include "index/HRControlRecords_p.h"
#include "index/HRDirectoryDepth_p.h"
#include "index/HRPackageMap_p.h"

#include <QPointer>
#include <QStringList>

namespace Hintreels {

/// What an index in memory knows; HRPackageIndex fills it from its database.
struct HRIndexPrivate
{
    QPointer<HRContext> context;
    QStringList paths;
    HRControlRecords records;
    HRControlReader reader;
    HRPackageMap packages;
    HRControlFileProbe probe;
    HRDirectoryDepth depth;
    QString mappedPackage; // the one mapped last, under this suffix
    QString mappedSuffix;
    bool inUpdate = false;

    /// Whether the first element of the file, which may be a Qt resource, is that of control files.
    bool isControlFile(const QString &path);
};

} // namespace Hintreels
