// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRPackageScanner_p.h"

#include "context/setting_p.h"
#include "files/HRDirectoryListing_p.h"
#include "gates/HRPackageRules_p.h"
#include "index/HRIndex.h"
#include "index/HRIndex_p.h"
#include "interface/HRTypes.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace Hintreels {

namespace {

bool isWildcard(QChar c)
{
    return c == u'*' || c == u'?' || c == u'[' || c == u']';
}

/// The directories with this suffix. QDir's own filter is slow to make, and only needed where the
/// suffix is a pattern.
QFileInfoList packagesIn(const QDir &directory, const QString &suffix)
{
    constexpr QDir::Filters kind
        = QDir::Dirs | QDir::NoSymLinks | QDir::Readable | QDir::NoDotAndDotDot;
    if (std::any_of(suffix.begin(), suffix.end(), isWildcard))
        return directory.entryInfoList({ u'*' + suffix }, kind, QDir::NoSort);
    QFileInfoList packages = directory.entryInfoList(kind, QDir::NoSort);
    const auto isOther = [&suffix](const QFileInfo &info) {
        return !info.fileName().endsWith(suffix, Qt::CaseInsensitive);
    };
    packages.erase(std::remove_if(packages.begin(), packages.end(), isOther), packages.end());
    return packages;
}

// What the control files of strangers may take of the host's time.
constexpr qint64 largestControlFile = 8LL * 1024 * 1024; // bytes
constexpr size_t mostFiles = 2000;
constexpr int deepestLevel = 20; // below the package

int levelsBetween(const QString &package, const QString &directory)
{
    return QDir(package).relativeFilePath(directory).count(u'/') + 1;
}

} // namespace

HRPackageScanner::HRPackageScanner(
    const HRContext &context, HRIndex &index, Report report, Report refuse)
    : m_context(context)
    , m_index(index)
    , m_report(std::move(report))
    , m_refuse(std::move(refuse))
{
    // The index may live for longer.
    HRIndexPrivate::of(m_index).prefilter.setJudge(
        [this, life = std::weak_ptr<bool>(m_life)](
            const QString &path, qint64 size) { return life.expired() || mayRead(path, size); });
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
    const QString suffix = u'.' + setting(m_context, packageSuffixKey, QStringLiteral("hintreels"));
    const QString filter = u'*' + suffix;
    m_report(QStringLiteral("indexing packages (%2) in %1 ").arg(directory.absolutePath(), filter));

    const QFileInfoList packages = packagesIn(directory, suffix);
    for (const QFileInfo &package : packages)
        scanPackage(package);

    const QString canonicalPath = directory.canonicalPath();
    if (!m_scannedDirectories.contains(canonicalPath))
        m_scannedDirectories.append(canonicalPath);
}

void HRPackageScanner::scanPackage(const QFileInfo &package)
{
    const QDir directory(package.absoluteFilePath());
    m_report(QStringLiteral("indexing control files in %1").arg(directory.absolutePath()));

    const QString control = setting(m_context, controlDirectoryKey, QStringLiteral("Control"));
    indexFiles(QFileInfo(directory.absoluteFilePath(control)), package.canonicalFilePath());
}

// The control directory itself holds the control files; what lies in directories below it is the
// package's own business and is not looked at.
void HRPackageScanner::indexFiles(const QFileInfo &directory, const QString &packagePath)
{
    m_report(QStringLiteral("looking for control files in :%1").arg(directory.absoluteFilePath()));

    // A listed file is no link, so its canonical path follows from the directory's.
    const QString canonicalPath = directory.canonicalFilePath();
    if (canonicalPath.isEmpty())
        return;
    HRDirectoryListing listing(canonicalPath + u'/', ".xml");
    dropExcess(listing, packagePath);
    // Asked once: the text for each of thousands of files costs more than the rest of its scan.
    const bool isReported
        = setting(m_context, messageLevelKey, int(messageWarning)) >= int(messageInformation);
    const bool isJudged = packageRules(m_context).fromStrangers;
    const auto isWanted = [&](const QString &path, const std::optional<HRFileStamp> &stamp) {
        if (isJudged && stamp && !mayRead(path, stamp->size))
            return false;
        if (isReported)
            m_report(QStringLiteral("found control file :") + path);
        return true;
    };
    HRIndexPrivate::of(m_index).indexListing(listing, packagePath, isWanted);
}

/// Each file that may not be read is told of once.
bool HRPackageScanner::mayRead(const QString &path, qint64 size) const
{
    if (size <= largestControlFile || !packageRules(m_context).fromStrangers)
        return true;
    if (!m_told.contains(path)) {
        m_told.insert(path);
        m_refuse(QStringLiteral("Control file %1 is larger than %2 bytes")
                     .arg(path, QString::number(largestControlFile)));
    }
    return false;
}

/// Leaves the files out of a listing that strangers have too many of.
void HRPackageScanner::dropExcess(HRDirectoryListing &listing, const QString &package) const
{
    if (!packageRules(m_context).fromStrangers)
        return;
    if (levelsBetween(package, listing.directory()) > deepestLevel) {
        m_refuse(QStringLiteral("Package %1: control files lie more than %2 levels deep")
                     .arg(package, QString::number(deepestLevel)));
        listing.keepFirst(0);
    }
    const size_t count = listing.files().size();
    if (count > mostFiles)
        m_refuse(QStringLiteral("Package %1: only the first %2 of %3 control files are read")
                     .arg(package, QString::number(mostFiles), QString::number(count)));
    listing.keepFirst(mostFiles);
}

} // namespace Hintreels
