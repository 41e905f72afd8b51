// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "commandLine.h"
#include "verbs.h"

#include "interface/HRInterface.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <cstring>

#include <unistd.h>

namespace Hintreels {

namespace {

constexpr char description[]
    = R"(Starts PROGRAM with the hints of your packages in it, as if it had come with them.

PROGRAM is any program of Qt Widgets, and stays as it is. Its parts go by the names that its
developers gave them; DIR holds packages (Name.hintreels) with hints for these keys. Texts that you
change show with the next hint. This is for trying and for writing hints, not for production: it
loads a plugin into a program whose developers know nothing of it.

Example, for packages in the directory hints:
  hintreels run --packages hints -- featherpad notes.md

Exit status: that of PROGRAM; 2 where it could not be started.)";

/// The directories of plugins in which Qt finds the one that brings the hints, for each Qt that it
/// was built with.
QStringList pluginDirectories()
{
    const QDir plugins(
        QCoreApplication::applicationDirPath() + QLatin1String("/" HINTREELS_WAY_TO_PLUGINS));
    QStringList directories;
    const QStringList builds = plugins.entryList({ QStringLiteral("qt*") }, QDir::Dirs);
    for (const QString &qt : builds) {
        const QString directory = plugins.filePath(qt);
        if (QFileInfo::exists(directory + QLatin1String("/generic/libhintreels-attach.so")))
            directories.append(QDir::cleanPath(directory));
    }
    if (directories.isEmpty())
        refuse(QStringLiteral("the plugin libhintreels-attach.so is not in %1/qt*/generic")
                   .arg(QDir::cleanPath(plugins.path())));
    return directories;
}

QStringList packagesAnd(QStringList directories)
{
    const QString standard = HRInterface::standardPackages();
    if (standard.isNull())
        refuse(QStringLiteral("Standard.hintreels is not in share/hintreels/packages"));
    directories.prepend(standard);
    return directories;
}

/// Puts values before those that an environment variable has.
void prepend(const char *variable, QStringList values, QChar separator)
{
    for (const QString &value : std::as_const(values)) {
        if (value.contains(separator))
            refuse(QStringLiteral("%1 cannot be passed on: it has a '%2' in its name")
                       .arg(value, separator));
    }
    if (qEnvironmentVariableIsSet(variable))
        values.append(qEnvironmentVariable(variable));
    qputenv(variable, QFile::encodeName(values.join(separator)));
}

} // namespace

int run(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QCommandLineOption packages(QStringLiteral("packages"),
        QStringLiteral("A directory that holds packages. May be given several times."),
        QStringLiteral("DIR"));
    QCommandLineParser parser;
    parser.setApplicationDescription(QLatin1String(description));
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parser.addOption(packages);
    parser.addPositionalArgument(QStringLiteral("PROGRAM"),
        QStringLiteral("The program, and its own arguments."), QStringLiteral("[--] PROGRAM ..."));
    readOptions(parser);
    if (!parser.isSet(packages))
        refuse(QStringLiteral("names no --packages DIR"));
    if (parser.positionalArguments().isEmpty())
        refuse(QStringLiteral("names no program"));

    const QStringList plugins = pluginDirectories();
    const QStringList dataPaths = packagesAnd(readableDirectories(parser.values(packages)));
    prepend("HINTREELS_PACKAGES", dataPaths, QDir::listSeparator());
    prepend("QT_PLUGIN_PATH", plugins, QDir::listSeparator());
    prepend("QT_QPA_GENERIC_PLUGINS", { QStringLiteral("hintreels-attach") }, u',');
    // As they came, whatever their encoding.
    char **program = argv + argc - parser.positionalArguments().size();
    execvp(*program, program);
    refuse(QStringLiteral("cannot start %1: %2")
               .arg(parser.positionalArguments().constFirst(),
                   QString::fromLocal8Bit(std::strerror(errno))));
}

} // namespace Hintreels
