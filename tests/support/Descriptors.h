// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QFile>
#include <QStringList>

/// What the open descriptors of this process refer to, sorted.
inline QStringList openDescriptors()
{
    const QDir directory(QStringLiteral("/proc/self/fd"));
    QStringList targets;
    const QStringList names = directory.entryList(QDir::AllEntries | QDir::System);
    for (const QString &name : names) {
        const QString target = QFile::symLinkTarget(directory.filePath(name));
        if (!target.isEmpty() && !target.contains(QLatin1String("/proc/")))
            targets.append(target);
    }
    targets.sort();
    return targets;
}
