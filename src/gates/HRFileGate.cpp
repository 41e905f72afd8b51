// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "gates/HRFileGate_p.h"

#include "files/HRRegularFile_p.h"
#include "gates/HRQmlImport_p.h"

#include <QDir>
#include <QFileInfo>
#include <QMutexLocker>

#include <algorithm>

namespace Hintreels {

namespace {

QString canonical(const QString &path)
{
    return QFileInfo(path).canonicalFilePath();
}

bool isBelow(const QString &canonicalPath, const QString &directory)
{
    const QString parent = canonical(directory);
    return !parent.isEmpty()
        && canonicalPath.startsWith(parent.endsWith(u'/') ? parent : parent + u'/');
}

/// Whether a file belongs to an installed module that may be imported.
/// @param refused receives the module, where it is another one
bool isOfAllowedModule(const QString &canonicalPath, const HRReach &reach, QString &refused)
{
    for (const QString &importPath : reach.importPaths) {
        if (!isBelow(canonicalPath, importPath))
            continue;
        const QDir directory(canonical(importPath));
        const HRQmlImport import = moduleInDirectory(
            directory.relativeFilePath(QFileInfo(canonicalPath).absolutePath()));
        if (isModuleAllowed(import.module, import.major, reach.rules.modules))
            return true;
        refused = import.module;
    }
    return false;
}

bool importsOnlyAllowed(
    const QVector<HRQmlImport> &imports, const QStringList &modules, QString &refused)
{
    for (const HRQmlImport &import : imports) {
        if (isModuleAllowed(import.module, import.major, modules))
            continue;
        refused = import.module;
        return false;
    }
    return true;
}

QString textOf(const QString &path)
{
    QByteArray bytes;
    return readRegularFile(path, bytes) ? QString::fromUtf8(bytes) : QString();
}

} // namespace

bool isInside(const QString &path, const QStringList &directories)
{
    const QString canonicalPath = canonical(path);
    return std::any_of(directories.begin(), directories.end(),
        [&canonicalPath](const QString &directory) { return isBelow(canonicalPath, directory); });
}

void HRFileGate::setReach(const HRReach &reach)
{
    const QMutexLocker locker(&m_mutex);
    m_reach = reach;
}

HRReach HRFileGate::reach() const
{
    const QMutexLocker locker(&m_mutex);
    return m_reach;
}

HRPackageRules HRFileGate::rules() const
{
    const QMutexLocker locker(&m_mutex);
    return m_reach.rules;
}

bool HRFileGate::mayOpen(const QString &path, HRFileUse use) const
{
    const HRReach reach = this->reach();
    if (!reach.rules.ownFilesOnly || path.isEmpty() || !QFileInfo::exists(path))
        return true;
    QString module;
    if (!isInside(path, reach.packages))
        return isOfAllowedModule(canonical(path), reach, module);
    return !reach.rules.fromStrangers || isFormatForStrangers(path, use);
}

bool HRFileGate::mayRun(const QString &path, QString &refused) const
{
    const HRReach reach = this->reach();
    if (!reach.rules.ownFilesOnly || !QFileInfo::exists(path))
        return true;
    if (!isInside(path, reach.packages))
        return isOfAllowedModule(canonical(path), reach, refused);
    return !reach.rules.fromStrangers
        && importsOnlyAllowed(importsOfQml(textOf(path)), reach.rules.modules, refused);
}

bool HRFileGate::mayImport(const QString &path, QString &refused) const
{
    const HRReach reach = this->reach();
    if (!reach.rules.ownFilesOnly || !QFileInfo::exists(path))
        return true;
    if (!isInside(path, reach.packages))
        return isOfAllowedModule(canonical(path), reach, refused);
    const QString text = textOf(path);
    return !reach.rules.fromStrangers && !loadsPlugin(text)
        && importsOnlyAllowed(importsOfQmldir(text), reach.rules.modules, refused);
}

} // namespace Hintreels
