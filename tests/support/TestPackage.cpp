// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/TestPackage.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

QString TestPackages::path() const
{
    return QFileInfo(m_directory.path()).canonicalFilePath();
}

QString TestPackages::write(const QString &relativePath, const QByteArray &content) const
{
    const QString filePath = QDir(path()).absoluteFilePath(relativePath);
    QDir().mkpath(QFileInfo(filePath).absolutePath());
    QFile file(filePath);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(filePath));
    return filePath;
}

QString TestPackages::writeControl(const QString &package, const QString &name,
    const QByteArray &entries, const QByteArray &rootAttributes) const
{
    return write(package + ".hintreels/Control/" + name,
        "<hintreels " + rootAttributes + ">" + entries + "</hintreels>");
}
