// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>

/// One run of a command to its end: its exit status, and all that it wrote.
struct CommandRun
{
    CommandRun(const QString &program, const QStringList &arguments,
        const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment())
    {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(program, arguments);
        constexpr int longTime = 60000; // ms: other programs may keep the processor busy
        if (process.waitForFinished(longTime) && process.exitStatus() == QProcess::NormalExit)
            status = process.exitCode();
        output = process.readAllStandardOutput();
        errors = process.readAllStandardError();
    }

    int status = -1; ///< -1 where it did not end by itself
    QByteArray output;
    QByteArray errors;
};
