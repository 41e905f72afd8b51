// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "Options.h"

#include "hints/IndexChoice.h"

#include <QCommandLineParser>
#include <QMap>

#include <cstdlib>

namespace Sketchpad {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("Options", text);
}

[[noreturn]] void refuse(const QString &problem)
{
    qCritical("%s", qPrintable(problem));
    std::exit(2);
}

Theme themeNamed(const QString &name)
{
    const QMap<QString, Theme> themes{ { QStringLiteral("light"), Theme::Light },
        { QStringLiteral("dark"), Theme::Dark }, { QStringLiteral("contrast"), Theme::Contrast },
        { QStringLiteral("dark-contrast"), Theme::DarkContrast } };
    if (!themes.contains(name))
        refuse(tr("There is no theme \"%1\"; use one of %2.")
                   .arg(name, QStringList(themes.keys()).join(QLatin1String(", "))));
    return themes.value(name);
}

QString knownIndex(const QString &name)
{
    if (!indexNames().contains(name)) {
        refuse(tr("There is no index \"%1\"; use one of %2.")
                   .arg(name, indexNames().join(QLatin1String(", "))));
    }
    return name;
}

} // namespace

Options readOptions(const QCoreApplication &application)
{
    const QCommandLineOption theme(QStringLiteral("theme"),
        tr("light, dark, contrast or dark-contrast."), QStringLiteral("theme"),
        QStringLiteral("light"));
    const QCommandLineOption locale(QStringLiteral("locale"),
        tr("The language of the hints, such as de_DE."), QStringLiteral("name"),
        QStringLiteral("en_US"));
    const QCommandLineOption index(QStringLiteral("index"),
        tr("Where hints are looked up: %1.").arg(indexNames().join(QLatin1String(", "))),
        QStringLiteral("index"), indexNames().first());
    const QCommandLineOption geometry(QStringLiteral("geometry-file"),
        tr("Keep a file that says where the tools are on the screen."), QStringLiteral("file"));
    QCommandLineParser parser;
    parser.setApplicationDescription(tr("A small drawing program whose tools explain themselves."));
    parser.addHelpOption();
    parser.addOptions({ theme, locale, index, geometry });
    parser.process(application);
    return { themeNamed(parser.value(theme)), parser.value(locale), knownIndex(parser.value(index)),
        parser.value(geometry) };
}

} // namespace Sketchpad
