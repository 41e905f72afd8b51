// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "hintreels/check/ControlFile.h"
#include "hintreels/check/Package.h"
#include "hintreels/check/Rule.h"
#include "hintreels/check/localeName.h"
#include "hintreels/check/nearestWord.h"
#include "hintreels/check/resources.h"

#include <QDir>
#include <QDirIterator>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace Hintreels {

namespace {

void checkLocale(const Element &element, const Tell &tell)
{
    const QString name = element.attribute("locale");
    if (element.parent() || name.isEmpty() || isKnownLocale(name))
        return;
    const QString nearest = nearestLocale(name);
    tell(element.spot(QStringLiteral("locale")),
        QStringLiteral("there is no locale \"%1\"; the library takes it for %2")
                .arg(name, QLocale(name).name())
            + (nearest.isEmpty() ? QString() : QStringLiteral("; did you mean %1?").arg(nearest)));
}

/// Those names in the list of a root that no package has.
QStringList unknownPackages(const Element &root)
{
    static const QRegularExpression separators(QStringLiteral("[,;\\s]+"));
    const QStringList known = root.file->package().shelf().names();
    QStringList names = root.attribute("search").split(separators);
    const auto isFine
        = [&known](const QString &name) { return name.isEmpty() || known.contains(name); };
    names.erase(std::remove_if(names.begin(), names.end(), isFine), names.end());
    return names;
}

void checkSearch(const Element &element, const Tell &tell)
{
    if (element.parent())
        return;
    const QStringList names = unknownPackages(element);
    for (const QString &name : names) {
        tell(element.spot(QStringLiteral("search")),
            QStringLiteral("there is no package %1").arg(name)
                + suggestion(name, element.file->package().shelf().names()));
    }
}

/// Whether the user interface is chosen here; an entry that chooses none has that of the root.
bool choosesUi(const Element &element)
{
    return element.parent() ? element.isEntry() && element.node->hasAttribute(QStringLiteral("ui"))
                            : element.file->hasEntries();
}

void checkUi(const Element &element, const Tell &tell)
{
    // What a misspelt package would bring is not missing twice.
    if (!choosesUi(element) || !unknownPackages(*element.file->root()).isEmpty()
        || !element.file->uiFile(*element.node).isNull())
        return;
    const QString name = element.attribute("ui");
    const QString text = name.isEmpty()
        ? QStringLiteral("nothing shows these hints: neither this package nor one in `search` has "
                         "a user interface; did you mean search=\"Standard\"?")
        : QStringLiteral("there is no user interface %1").arg(name);
    tell(element.spot(QStringLiteral("ui")), text);
}

QStringList filesIn(const QStringList &directories)
{
    QStringList names;
    for (const QString &directory : directories) {
        QDirIterator files(directory, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            names.append(QDir(directory).relativeFilePath(files.next()));
    }
    return names;
}

void checkMissingFile(const Element &element, const Tell &tell)
{
    if (!namesResource(element))
        return;
    const QString source = element.attribute("source");
    if (leavesPackage(element, source) || !findResource(element, source).isNull())
        return;
    const QStringList directories = resourceDirectories(element);
    tell(element.spot(QStringLiteral("source")),
        QStringLiteral("there is no file %1 in %2")
                .arg(source, QDir(element.file->package().path()).relativeFilePath(directories[0]))
            + suggestion(source, filesIn(directories)));
}

void checkPathOutside(const Element &element, const Tell &tell)
{
    const QString source = element.attribute("source");
    if (namesResource(element) && leavesPackage(element, source))
        tell(element.spot(QStringLiteral("source")),
            QStringLiteral("%1 lies outside of the package").arg(source));
}

constexpr Rule rules[] = {
    { "locale", Severity::error, "The locale of a file is unknown",
        "The library takes it for another one, so the hints show in the wrong language, or "
        "never.",
        "Write language and country as en_US: ISO 639 and ISO 3166, with a low line between "
        "them.",
        "<hintreels locale=\"en_GB\" search=\"Standard\">", checkLocale, nullptr, nullptr },
    { "search", Severity::error, "The list `search` names a package that does not exist",
        "What lies in that package, such as the user interface, is not found.",
        "Mend the name, or name the directory that holds the package by --packages.",
        "<hintreels locale=\"en_US\" search=\"Standard\">", checkSearch, nullptr, nullptr },
    { "no-ui", Severity::error, "There is no user interface for the hints",
        "Nothing shows, since the package brings no QML of its own and searches none.",
        "Search the package with the standard user interface, or bring ui/HintreelUI.qml.",
        "<hintreels locale=\"en_US\" search=\"Standard\">", checkUi, nullptr, nullptr },
    { "missing-file", Severity::error, "A picture or a clip does not exist",
        "The hint shows without it.",
        "Put the file into the directory Resources of the package, or mend its name: upper and "
        "lower case count.",
        "<video source=\"pen.mp4\" alt=\"A line becomes smooth\"/>", checkMissingFile, nullptr,
        nullptr },
    { "path-outside", Severity::error, "A path leaves the package",
        "On other machines the file is not there, and hosts with gates do not open it.",
        "Copy the file into the directory Resources, and name it by its path in there.",
        "<picture source=\"tools/pen.png\" alt=\"A line\"/>", checkPathOutside, nullptr, nullptr },
};

} // namespace

std::vector<Rule> searchRules()
{
    return { std::begin(rules), std::end(rules) };
}

} // namespace Hintreels
