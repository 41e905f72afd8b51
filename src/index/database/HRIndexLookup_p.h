// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>

#include <optional>

namespace Hintreels {

/// The question which control file holds a key for a locale, prepared once and asked often.
class HRIndexLookup
{
public:
    struct File
    {
        QString path;
        int depth;
    };

    explicit HRIndexLookup(const QSqlDatabase &database);

    /// @param locale as QLocale::name() spells it
    std::optional<File> find(const QString &key, const QString &locale);

    /// At which depth the database knows a file, if it does. Reads all files' rows.
    std::optional<int> depthOf(const QString &path);

private:
    bool ask(const QString &key, const QString &locale);
    bool askAnew(const QString &key, const QString &locale);

    QSqlDatabase m_database;
    QSqlQuery m_query;
    bool m_isPrepared = false;
};

} // namespace Hintreels
