// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QFile>
#include <QStringList>

/// Names of the threads of this process that decode and play clips, FFmpeg's own included.
inline QStringList clipThreads()
{
    const QDir threads(QStringLiteral("/proc/self/task"));
    QStringList names;
    const QStringList ids = threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &id : ids) {
        QFile file(threads.filePath(id + "/comm"));
        if (!file.open(QIODevice::ReadOnly))
            continue; // it has ended meanwhile
        const QString name = QString::fromUtf8(file.readAll().trimmed());
        if (name == "FFMPEG" || name == "Controller" || name.startsWith("av:"))
            names.append(name);
    }
    return names;
}
