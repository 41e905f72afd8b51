// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "hintreels/check/resources.h"

#include "gates/HRFileGate_p.h"
#include "hintreels/check/ControlFile.h"
#include "ui/popup/componentSearch_p.h"

#include <QDir>

#include <algorithm>

namespace Hintreels {

namespace {

bool isBelow(const QString &path, const QStringList &directories)
{
    const QString clean = QDir::cleanPath(path);
    return std::any_of(directories.begin(), directories.end(), [&](const QString &directory) {
        return clean.startsWith(QDir::cleanPath(directory) + u'/');
    });
}

} // namespace

bool namesResource(const Element &element)
{
    const bool isShown
        = element.tag() == QLatin1String("picture") || element.tag() == QLatin1String("video");
    // What stands for a placeholder, only the host knows.
    const QString source = element.attribute("source");
    return isShown && element.entry() && !source.trimmed().isEmpty()
        && !source.contains(QLatin1String("%("));
}

QStringList resourceDirectories(const Element &element)
{
    QString base = chosenByContent(element.entry(), QStringLiteral("resources"));
    if (base.isEmpty())
        base = QStringLiteral("Resources");
    QStringList directories = element.file->searchedDirectories();
    for (QString &directory : directories)
        directory = QDir(directory).absoluteFilePath(base);
    return directories;
}

QString findResource(const Element &element, const QString &name)
{
    return firstExisting(resourceDirectories(element), name);
}

bool leavesPackage(const Element &element, const QString &name)
{
    const QStringList packages = element.file->searchedDirectories();
    const QString found = findResource(element, name);
    if (!found.isNull())
        return !isInside(found, packages);
    return !isBelow(
        QDir(resourceDirectories(element).constFirst()).absoluteFilePath(name), packages);
}

} // namespace Hintreels
