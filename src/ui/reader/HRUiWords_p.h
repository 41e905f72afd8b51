// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>
#include <QTranslator>

namespace Hintreels {

/// The standard UI's own words and the names of keys, in the languages that come with the library.
///
/// A language serves all countries that speak it; Chinese is there in both scripts. GUI thread
/// only.
class HRUiWords
{
public:
    /// One of the UI's own words; the word itself where there is none in the language.
    QString word(const QLocale &locale, const QString &text);

    /// What stands on a key, which is named in English; the name itself where there is no other.
    QString key(const QLocale &locale, const QString &name);

    /// How a key is said, which is named in English: without the abbreviation that stands on it.
    QString spokenKey(const QLocale &locale, const QString &name);

private:
    QString said(const QLocale &locale, const char *context, const QString &text);
    void load(const QString &language);

    QTranslator m_translator;
    QString m_language; // that is loaded, or was found to be missing
};

} // namespace Hintreels
