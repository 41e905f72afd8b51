// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "hintreels/check/checkPackage.h"

#include "hintreels/check/ControlFile.h"
#include "hintreels/check/Package.h"
#include "hintreels/check/Report.h"
#include "hintreels/check/Rule.h"

#include <QFileInfo>

namespace Hintreels {

namespace {

Tell tellOf(const Rule &rule, Report &report)
{
    return
        [&rule, &report](const Spot &spot, const QString &text) { report.add(rule, spot, text); };
}

/// What another kind of XML file says is its own affair.
bool holdsHints(const ControlFile &file)
{
    return file.root() && file.root()->tag() == QLatin1String("hintreels");
}

void checkFile(const ControlFile &file, Report &report)
{
    report.suppress(suppressionsOf(file));
    for (const Rule &rule : allRules()) {
        const Tell tell = tellOf(rule, report);
        if (rule.ofFile)
            rule.ofFile(file, tell);
        if (!rule.ofElement || !holdsHints(file))
            continue;
        for (const Element &element : file.elements())
            rule.ofElement(element, tell);
    }
}

void checkDirectory(const QString &path, Report &report)
{
    const QFileInfo directory(path);
    if (directory.isDir() && !(directory.isReadable() && directory.isExecutable()))
        report.addFailure(QStringLiteral("cannot read the directory %1").arg(path));
}

} // namespace

void checkPackage(const QString &path, const Shelf &shelf, Report &report)
{
    Package package(path, shelf);
    checkDirectory(path, report);
    checkDirectory(package.controlDirectory(), report);
    const QStringList paths = package.controlFiles();
    for (const QString &filePath : paths) {
        const ControlFile file(filePath, package);
        if (!file.isReadable())
            report.addFailure(QStringLiteral("cannot read %1").arg(filePath));
        checkFile(file, report);
        package.learn(file);
    }
    for (const Rule &rule : allRules()) {
        if (rule.ofPackage)
            rule.ofPackage(package, tellOf(rule, report));
    }
}

} // namespace Hintreels
