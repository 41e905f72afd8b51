// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "interface/standardPackages_p.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

namespace Hintreels {

namespace {

QString packagesIn(const QDir &prefix)
{
    const QString path = prefix.filePath(QStringLiteral("share/hintreels/packages"));
    const bool isThere = QFileInfo(path + QLatin1String("/Standard.hintreels")).isDir();
    return isThere ? QDir(path).canonicalPath() : QString();
}

} // namespace

QString libraryFile()
{
    Dl_info info;
    const bool isKnown = dladdr(reinterpret_cast<const void *>(&libraryFile), &info) != 0;
    const QString file = isKnown ? QFile::decodeName(info.dli_fname) : QString();
    // A program is named as it was called, which need not be a path.
    return file.contains(u'/') ? file : QCoreApplication::applicationFilePath();
}

QString packagesOf(const QString &library)
{
    QDir directory(QFileInfo(library).canonicalPath());
    const QString packages = packagesIn(QDir(directory.filePath(QStringLiteral(".."))));
    if (!packages.isNull() || !directory.cdUp() || directory.dirName() != QLatin1String("lib"))
        return packages;
    return packagesIn(QDir(directory.filePath(QStringLiteral(".."))));
}

} // namespace Hintreels
