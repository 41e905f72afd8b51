// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/HRPackageDepth_p.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace Hintreels {

namespace {

QString canonicalDirectory(const QString &path)
{
    return QDir(path).canonicalPath();
}

std::optional<int> levelsOfCanonical(const QString &filePath, const QString &packagePath)
{
    // The root's path is the only one that ends in a slash.
    const int length = packagePath.size() - (packagePath.endsWith(u'/') ? 1 : 0);
    if (!filePath.startsWith(packagePath) || filePath.mid(length, 1) != QLatin1String("/"))
        return std::nullopt;
    return int(std::count(filePath.cbegin() + length, filePath.cend(), u'/'));
}

} // namespace

std::optional<int> levelsBelowPackage(const QString &filePath, const QString &packagePath)
{
    if (!filePath.startsWith(packagePath))
        return std::nullopt;
    const QString package = canonicalDirectory(packagePath);
    if (package.isEmpty())
        return std::nullopt;
    QString place = QDir::cleanPath(QFileInfo(filePath).absoluteFilePath());
    for (int depth = 0;; ++depth) {
        // Compared before the root is tested for: the root may be the package.
        const QString canonical = canonicalDirectory(place);
        if (canonical == package)
            return depth;
        const QString parent = QFileInfo(place).path();
        if (canonical.isEmpty() || parent == place)
            return std::nullopt;
        place = parent;
    }
}

std::optional<int> HRPackageDepth::levels(
    const QString &filePath, const QString &packagePath, bool isCanonical)
{
    const QStringView directory = QStringView(filePath).left(filePath.lastIndexOf(u'/') + 1);
    if (!directory.isEmpty() && directory == m_directory && packagePath == m_package)
        return m_levels;
    const std::optional<int> levels = isCanonical ? levelsOfCanonical(filePath, packagePath)
                                                  : levelsBelowPackage(filePath, packagePath);
    m_directory = levels ? directory.toString() : QString();
    m_package = packagePath;
    m_levels = levels.value_or(0);
    return levels;
}

} // namespace Hintreels
