// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "hintreels/check/localeName.h"

#include "hintreels/check/nearestWord.h"

#include <QLocale>

namespace Hintreels {

namespace {

/// As the library spells names, with what people take for the code of the United Kingdom mended.
QString mended(QString name)
{
    name.replace(u'-', u'_');
    if (name.endsWith(QLatin1String("_UK")))
        name.replace(name.size() - 2, 2, QStringLiteral("GB"));
    return name;
}

QStringList namesOf(QLocale::Language language)
{
    QStringList names;
    const QList<QLocale> locales
        = QLocale::matchingLocales(language, QLocale::AnyScript, QLocale::AnyCountry);
    for (const QLocale &locale : locales)
        names.append(locale.name());
    names.removeDuplicates();
    return names;
}

/// "en_US" for "english".
QString localeOfLanguage(const QString &word)
{
    for (int i = QLocale::C + 1; i <= QLocale::LastLanguage; ++i) {
        const auto language = static_cast<QLocale::Language>(i);
        if (QLocale::languageToString(language).compare(word, Qt::CaseInsensitive) == 0)
            return QLocale(language).name();
    }
    return QString();
}

} // namespace

bool isKnownLocale(const QString &name)
{
    const QLocale locale(name);
    if (locale.language() == QLocale::C)
        return name == QLatin1String("C");
    // A script stands between language and country, and is left out of the library's name.
    QStringList parts = QString(name).replace(u'-', u'_').split(u'_');
    constexpr int scriptLength = 4;
    if (parts.size() > 1 && parts[1].size() == scriptLength)
        parts.removeAt(1);
    const QString known = parts.join(u'_');
    return locale.name() == known || locale.name().startsWith(known + u'_');
}

QString nearestLocale(const QString &name)
{
    const QString likely = mended(name);
    if (likely != name && isKnownLocale(likely))
        return likely;
    const QString language = localeOfLanguage(name);
    if (!language.isEmpty())
        return language;
    const QLocale locale(likely);
    return nearestWord(likely, namesOf(locale.language()));
}

} // namespace Hintreels
