// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "hintreels/check/ControlFile.h"
#include "hintreels/check/Package.h"
#include "hintreels/check/Rule.h"
#include "hintreels/check/nearestWord.h"

#include <QDir>
#include <QFileInfo>

#include <iterator>

namespace Hintreels {

namespace {

const QString suffix = QStringLiteral("hintreels");

void checkSuffix(const Package &package, const Tell &tell)
{
    const QFileInfo directory(package.path());
    if (directory.suffix() == suffix)
        return;
    const QString name = directory.completeBaseName();
    tell({ package.path() },
        QStringLiteral("the library does not take this directory for a package; did you mean "
                       "%1.hintreels?")
            .arg(name.isEmpty() ? directory.fileName() : name));
}

void checkControlDirectory(const Package &package, const Tell &tell)
{
    if (Package::looksLikePackage(package.path()))
        return;
    const QStringList directories
        = QDir(package.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    const QString nearest = nearestWord(QStringLiteral("Control"), directories);
    tell({ package.path() },
        QStringLiteral("the package has no directory Control")
            + (nearest.isEmpty() ? QString() : QStringLiteral(", but one %1").arg(nearest)));
}

QString reasonOfPlace(const Package &package, const QString &path)
{
    const QFileInfo file(path);
    if (file.absolutePath() == package.controlDirectory())
        return QStringLiteral("links are passed over");
    return QStringLiteral("only files directly in the directory Control are read");
}

void checkPlaces(const Package &package, const Tell &tell)
{
    const QStringList paths = package.otherXmlFiles();
    for (const QString &path : paths) {
        const ControlFile file(path, package);
        if (file.root() && file.root()->tag() == QLatin1String("hintreels"))
            tell({ path },
                QStringLiteral("the library does not see this file: ")
                    + reasonOfPlace(package, path));
    }
}

constexpr Rule rules[] = {
    { "package-suffix", Severity::error, "The name of a package does not end in .hintreels",
        "The library passes the directory over, or finds nothing in it.",
        "Rename the directory. Upper and lower case count.", "Painter.hintreels", nullptr, nullptr,
        checkSuffix },
    { "control-directory", Severity::error, "A package has no directory Control",
        "It has no hints, and no other package finds what lies in it.",
        "Put the control files into a directory of this name. A package that only serves "
        "others has one with an empty control file.",
        "Painter.hintreels/Control/en_US.xml", nullptr, nullptr, checkControlDirectory },
    { "misplaced-file", Severity::error, "A control file lies where the library does not look",
        "None of its hints is ever shown.",
        "Move it into the directory Control itself. Links there have to become files.",
        "Painter.hintreels/Control/en_US.xml", nullptr, nullptr, checkPlaces },
};

} // namespace

std::vector<Rule> packageRules()
{
    return { std::begin(rules), std::end(rules) };
}

} // namespace Hintreels
