// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/HRUiWords_p.h"

#include "ui/reader/standardUiResource_p.h"

#include <QHash>

namespace Hintreels {

namespace {

/// By which the translations' files are named.
QString languageOf(const QLocale &locale)
{
    if (locale.language() != QLocale::Chinese)
        return locale.name().section(u'_', 0, 0);
    // Qt knows which script a country writes.
    const bool isTraditional = locale.script() == QLocale::TraditionalChineseScript;
    return isTraditional ? QStringLiteral("zh_TW") : QStringLiteral("zh_CN");
}

/// Names of keys in full, and what QKeySequence calls them.
const QHash<QString, QString> &usualNames()
{
    static const QHash<QString, QString> names{
        { QStringLiteral("Control"), QStringLiteral("Ctrl") },
        { QStringLiteral("Delete"), QStringLiteral("Del") },
        { QStringLiteral("Insert"), QStringLiteral("Ins") },
        { QStringLiteral("Escape"), QStringLiteral("Esc") },
        { QStringLiteral("Page Up"), QStringLiteral("PgUp") },
        { QStringLiteral("Page Down"), QStringLiteral("PgDown") },
    };
    return names;
}

/// The names that are translated are those of QKeySequence; writers use others as well.
QString usualName(const QString &key)
{
    return usualNames().value(key, key);
}

} // namespace

QString HRUiWords::word(const QLocale &locale, const QString &text)
{
    const QString word = said(locale, "StandardUI", text);
    return word.isEmpty() ? text : word;
}

QString HRUiWords::key(const QLocale &locale, const QString &name)
{
    const QString key = said(locale, "KeyCaps", usualName(name));
    return key.isEmpty() ? name : key;
}

QString HRUiWords::spokenKey(const QLocale &locale, const QString &name)
{
    const QString full = usualNames().key(name, name);
    const QString spoken = said(locale, "SpokenKeys", full);
    if (!spoken.isEmpty())
        return spoken;
    const QString onCap = said(locale, "KeyCaps", usualName(name));
    return onCap.isEmpty() ? full : onCap;
}

QString HRUiWords::said(const QLocale &locale, const char *context, const QString &text)
{
    const QString language = languageOf(locale);
    if (language != m_language)
        load(language);
    return m_translator.translate(context, text.toUtf8().constData());
}

void HRUiWords::load(const QString &language)
{
    m_language = language;
    // Nynorsk is read by those who read Bokmål.
    const QString file = language == QLatin1String("nn") ? QStringLiteral("nb") : language;
    [[maybe_unused]] const bool isThere
        = m_translator.load(standardUiResource(QStringLiteral("l10n/StandardUI_%1.qm").arg(file)));
}

} // namespace Hintreels
