// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

#include <functional>

QT_BEGIN_NAMESPACE
class QFileInfo;
QT_END_NAMESPACE

class HRContext;

namespace Hintreels {

class HRDirectoryListing;
class HRIndex;
struct HRListedFile;

/// Finds the packages in data paths and hands their control files to an index.
///
/// What it borrows must outlive it. GUI thread only; a scan blocks until it is done.
/// Paths that cannot be read are passed over in silence: a data path may come and go.
class HRPackageScanner
{
public:
    using Report = std::function<void(const QString &progress)>;

    /// @param report told of the progress
    /// @param refuse told of what packages of strangers have too much of
    HRPackageScanner(
        const HRContext &context, HRIndex &index, Report report,
        Report refuse = [](const QString &) {});

    void scanDataPaths(const QStringList &paths);
    void scanPackage(const QFileInfo &package);

    /// Canonical path of every data path scanned so far, each once, in order of the first scan.
    QStringList scannedDirectories() const { return m_scannedDirectories; }

private:
    void scanDataPath(const QString &path);
    void indexFiles(const QFileInfo &directory, const QString &packagePath);
    size_t filesWithin(
        const HRDirectoryListing &listing, const QString &directory, const QString &package) const;
    bool isTooLarge(
        const HRDirectoryListing &listing, const HRListedFile &file, const QString &path) const;

    const HRContext &m_context;
    HRIndex &m_index;
    Report m_report;
    Report m_refuse;
    QStringList m_scannedDirectories;
};

} // namespace Hintreels
