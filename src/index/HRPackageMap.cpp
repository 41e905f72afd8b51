// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/HRPackageMap_p.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace Hintreels {

QString packageNameOf(const QString &path, const QString &suffix)
{
    QFileInfo place(path);
    while (!place.filePath().isEmpty() && !place.isRoot()) {
        if (place.suffix() == suffix && place.isDir())
            return place.completeBaseName();
        const QString parent = place.absolutePath();
        if (parent == place.filePath())
            break; // a root that is not there
        place.setFile(parent);
    }
    return QString();
}

void HRPackageMap::add(const QString &name, const QString &packagePath)
{
    QStringList &paths = m_paths[name];
    if (!paths.contains(packagePath))
        paths.append(packagePath);
}

QStringList HRPackageMap::pathsOfSearchList(const QString &search) const
{
    // An empty part between separators is a name like any other; it matches packages without one.
    QStringList paths;
    static const QRegularExpression separators(
        QStringLiteral("[,;\\s]+"), QRegularExpression::UseUnicodePropertiesOption);
    const QStringList names = search.split(separators);
    for (const QString &name : names)
        paths += m_paths.value(name);
    return paths;
}

} // namespace Hintreels
