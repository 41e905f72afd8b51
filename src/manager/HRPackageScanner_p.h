// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSet>
#include <QStringList>

#include <functional>
#include <memory>

QT_BEGIN_NAMESPACE
class QFileInfo;
QT_END_NAMESPACE

class HRContext;

namespace Hintreels {

class HRDirectoryListing;
class HRIndex;

/// Finds the packages in data paths and hands their control files to an index.
///
/// What it borrows must outlive it. GUI thread only; a scan blocks until it is done.
/// Paths that cannot be read are passed over in silence: a data path may come and go. As long as
/// it lives, it also judges what the index reads later, for a file may have grown since.
class HRPackageScanner
{
public:
    using Report = std::function<void(const QString &progress)>;

    /// @param report told of the progress
    /// @param refuse told of what packages of strangers have too much of
    HRPackageScanner(
        const HRContext &context, HRIndex &index, Report report,
        Report refuse = [](const QString &) {});
    Q_DISABLE_COPY(HRPackageScanner)

    void scanDataPaths(const QStringList &paths);
    void scanPackage(const QFileInfo &package);

    /// Canonical path of every data path scanned so far, each once, in order of the first scan.
    QStringList scannedDirectories() const { return m_scannedDirectories; }

private:
    bool mayRead(const QString &path, qint64 size) const;
    void scanDataPath(const QString &path);
    void indexFiles(const QFileInfo &directory, const QString &packagePath);
    void dropExcess(HRDirectoryListing &listing, const QString &package) const;

    const HRContext &m_context;
    HRIndex &m_index;
    Report m_report;
    Report m_refuse;
    QStringList m_scannedDirectories;
    mutable QSet<QString> m_told; // control files that are too large
    std::shared_ptr<bool> m_life = std::make_shared<bool>();
};

} // namespace Hintreels
