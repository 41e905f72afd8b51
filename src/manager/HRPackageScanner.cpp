// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRPackageScanner_p.h"

#include "context/HRSetting_p.h"
#include "index/HRIndex.h"
#include "index/HRPosixFile_p.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

namespace Hintreels {

HRPackageScanner::HRPackageScanner(const HRContext &context, HRIndex &index, Report report)
    : m_context(context)
    , m_index(index)
    , m_report(std::move(report))
{
}

void HRPackageScanner::scanDataPaths(const QStringList &paths)
{
    for (const QString &path : paths) {
        if (QFileInfo(path).isDir())
            scanDataPath(path);
    }
}

void HRPackageScanner::scanDataPath(const QString &path)
{
    const QDir directory(QFileInfo(path).absoluteFilePath());
    const QString filter = "*." + setting(m_context, packageSuffixKey, QString("hintreels"));
    m_report(QString("indexing packages (%2) in %1 ").arg(directory.absolutePath(), filter));

    const QFileInfoList packages = directory.entryInfoList({ filter },
        QDir::Dirs | QDir::NoSymLinks | QDir::Readable | QDir::NoDotAndDotDot, QDir::NoSort);
    for (const QFileInfo &package : packages)
        scanPackage(package);

    const QString canonicalPath = directory.canonicalPath();
    if (!m_scannedDirectories.contains(canonicalPath))
        m_scannedDirectories.append(canonicalPath);
}

void HRPackageScanner::scanPackage(const QFileInfo &package)
{
    const QDir directory(package.absoluteFilePath());
    m_report(QString("indexing control files in %1").arg(directory.absolutePath()));

    const QString control = setting(m_context, controlDirectoryKey, QString("Control"));
    indexFiles(QFileInfo(directory.absoluteFilePath(control)), package.canonicalFilePath());
}

// The control directory itself holds the control files; what lies in directories below it is the
// package's own business and is not looked at.
void HRPackageScanner::indexFiles(const QFileInfo &directory, const QString &packagePath)
{
    m_report(QString("looking for control files in :%1").arg(directory.absoluteFilePath()));

    // A listed file is no link, so its canonical path follows from the directory's.
    const QString base = directory.canonicalFilePath() + '/';
    const QStringList names = readableFileNames(directory.absoluteFilePath(), ".xml");
    for (const QString &name : names) {
        const QString path = base + name;
        m_report("found control file :" + path);
        m_index.indexControlFile(path, packagePath);
    }
}

} // namespace Hintreels
