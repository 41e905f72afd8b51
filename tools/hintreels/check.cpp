// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "commandLine.h"
#include "verbs.h"

#include "hintreels/check/Package.h"
#include "hintreels/check/Report.h"
#include "hintreels/check/Rule.h"
#include "hintreels/check/checkPackage.h"
#include "hintreels/check/formats.h"
#include "hintreels/check/nearestWord.h"
#include "interface/HRInterface.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>

namespace Hintreels {

namespace {

constexpr char description[]
    = R"(Looks through packages for what keeps a hint from showing as it was written.

DIR is a package (Name.hintreels) or a directory that holds packages. Nothing in them is run or
changed. Each finding is a line that editors understand:

  file:line:column: severity: tag: text

An error means that readers see less than you wrote, a warning that they may see something else
than you meant; a hint is advice. The tag names the rule; --explain tells why it is one, and how to
mend what it finds. Where a rule is wrong about an element, say so in a comment before that, with
your reason; before the first element it counts for the whole file:

  <!-- hintreels: ignore TAG: reason -->

Example, for the package Painter.hintreels in the directory hints:
  hintreels check hints

Exit status: 0 where all is fine, 1 where an error or a warning is left, 2 where not everything
could be looked at.)";

struct Options
{
    QCommandLineOption packages{ QStringLiteral("packages"),
        QStringLiteral("A directory that holds further packages, which those in DIR search."),
        QStringLiteral("DIR") };
    QCommandLineOption format{ QStringLiteral("format"),
        QStringLiteral("What is written: text, json or sarif."), QStringLiteral("FORMAT"),
        QStringLiteral("text") };
    QCommandLineOption explain{ QStringLiteral("explain"),
        QStringLiteral("Tells of a rule: what it finds, why, how to mend that, and an example; "
                       "`all` tells of all."),
        QStringLiteral("TAG") };
};

/// The parser writes its log to Qt's debug output; what is in there, the findings tell.
void dropDebugMessages(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtDebugMsg)
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

/// What docs/rules.md holds.
int explainAll()
{
    std::puts(
        "# Rules of `hintreels check`\n\n"
        "What the command finds in packages, and how to mend it; `hintreels check --help` tells "
        "how\nit is used. This page is written by `hintreels check --explain all`.");
    for (const Rule &rule : allRules())
        std::printf("\n%s", explanation(rule).constData());
    return 0;
}

int explain(const QString &tag)
{
    if (tag == QLatin1String("all"))
        return explainAll();
    QStringList tags;
    for (const Rule &rule : allRules())
        tags.append(QLatin1String(rule.tag));
    const Rule *rule = ruleOfTag(tag);
    if (!rule)
        refuse(QStringLiteral("there is no rule %1").arg(tag) + suggestion(tag, tags));
    std::fputs(explanation(*rule).constData(), stdout);
    return 0;
}

bool isPackage(const QString &path)
{
    return QFileInfo(path).suffix() == QLatin1String("hintreels")
        || Package::looksLikePackage(path);
}

/// The packages that a directory is or holds.
QStringList packagesAt(const QString &directory)
{
    if (isPackage(directory))
        return { directory };
    QStringList packages;
    const QFileInfoList entries
        = QDir(directory).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo &entry : entries) {
        if (isPackage(entry.absoluteFilePath()))
            packages.append(entry.absoluteFilePath());
    }
    if (packages.isEmpty())
        refuse(QStringLiteral("there is no package in %1").arg(directory));
    return packages;
}

Shelf shelfFor(const QStringList &packages, QStringList dataPaths)
{
    for (const QString &package : packages)
        dataPaths.append(QFileInfo(package).absolutePath());
    dataPaths.append(HRInterface::standardPackages());
    dataPaths.removeDuplicates();
    Shelf shelf;
    for (const QString &path : qAsConst(dataPaths))
        shelf.addDataPath(path);
    return shelf;
}

bool keepsFromPassing(const Finding &finding)
{
    return finding.severity != Severity::hint;
}

int tell(const Report &report, Format format)
{
    const QVector<Finding> findings = report.findings();
    std::fputs(format(findings).constData(), stdout);
    for (const QString &failure : report.failures())
        std::fprintf(stderr, "hintreels check: %s\n", qPrintable(failure));
    if (!report.failures().isEmpty())
        return couldNotRun;
    return std::any_of(findings.begin(), findings.end(), keepsFromPassing) ? 1 : 0;
}

Report checkAll(const QStringList &directories, const QStringList &dataPaths)
{
    QStringList packages;
    const QStringList readable = readableDirectories(directories);
    for (const QString &directory : readable)
        packages += packagesAt(QDir::cleanPath(directory));
    packages.removeDuplicates();
    const Shelf shelf = shelfFor(packages, readableDirectories(dataPaths));
    Report report;
    for (const QString &package : qAsConst(packages))
        checkPackage(package, shelf, report);
    return report;
}

} // namespace

int check(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    qInstallMessageHandler(dropDebugMessages);
    const Options options;
    QCommandLineParser parser;
    parser.setApplicationDescription(QLatin1String(description));
    parser.addOptions({ options.packages, options.format, options.explain });
    parser.addPositionalArgument(QStringLiteral("DIR"),
        QStringLiteral("A package, or a directory that holds packages."), QStringLiteral("DIR..."));
    readOptions(parser);
    if (parser.isSet(options.explain))
        return explain(parser.value(options.explain));
    const Format format = formatOfName(parser.value(options.format));
    if (!format)
        refuse(QStringLiteral("there is no format %1").arg(parser.value(options.format)));
    if (parser.positionalArguments().isEmpty())
        refuse(QStringLiteral("names no directory"));
    return tell(checkAll(parser.positionalArguments(), parser.values(options.packages)), format);
}

} // namespace Hintreels
