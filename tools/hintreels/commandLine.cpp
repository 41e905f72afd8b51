// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "commandLine.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace Hintreels {

namespace {

QString readableDirectory(const QString &path)
{
    const QFileInfo directory(path);
    if (!directory.exists())
        refuse(QStringLiteral("there is no directory %1").arg(path));
    if (!directory.isDir())
        refuse(QStringLiteral("%1 is no directory").arg(path));
    if (!directory.isReadable() || !directory.isExecutable())
        refuse(QStringLiteral("the directory %1 cannot be read").arg(path));
    return directory.absoluteFilePath();
}

} // namespace

void readOptions(QCommandLineParser &parser)
{
    // Qt's own adds one for options that only applications with windows have.
    const QCommandLineOption help({ QStringLiteral("h"), QStringLiteral("help") },
        QStringLiteral("Tells what you read here."));
    parser.addOption(help);
    if (!parser.parse(QCoreApplication::arguments()))
        refuse(parser.errorText());
    if (parser.isSet(help))
        parser.showHelp();
}

void refuse(const QString &problem)
{
    const QString command = QCoreApplication::arguments().constFirst();
    std::fprintf(stderr, "%s: %s; see %s --help\n", qPrintable(command), qPrintable(problem),
        qPrintable(command));
    std::exit(couldNotRun);
}

QStringList readableDirectories(QStringList paths)
{
    std::transform(paths.cbegin(), paths.cend(), paths.begin(), readableDirectory);
    return paths;
}

} // namespace Hintreels
