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

class HRIndex;

/// Finds the packages in data paths and hands their control files to an index.
///
/// What it borrows must outlive it. GUI thread only; a scan blocks until it is done.
/// Paths that cannot be read are passed over in silence: a data path may come and go.
class HRPackageScanner
{
public:
    using Report = std::function<void(const QString &progress)>;

    HRPackageScanner(const HRContext &context, HRIndex &index, Report report);

    void scanDataPaths(const QStringList &paths);
    void scanPackage(const QFileInfo &package);

    /// Canonical path of every data path scanned so far, each once, in order of the first scan.
    QStringList scannedDirectories() const { return m_scannedDirectories; }

private:
    void scanDataPath(const QString &path);
    void indexFiles(const QFileInfo &directory, const QString &packagePath);

    const HRContext &m_context;
    HRIndex &m_index;
    Report m_report;
    QStringList m_scannedDirectories;
};

} // namespace Hintreels
