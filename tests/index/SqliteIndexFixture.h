// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "content/HRXmlElement.h"
#include "context/HRContext.h"
#include "index/HRSQLiteIndex.h"
#include "support/MessageGuard.h"
#include "support/TestPackage.h"

#include <QDir>
#include <QLocale>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <memory>

/// An index in SQLite over packages in a temporary directory, with its database there, too.
struct SqliteIndexFixture
{
    explicit SqliteIndexFixture(bool open = true)
    {
        QDir().mkpath(databaseDirectory());
        context.set(Hintreels::persistentDirectoryKey, databaseDirectory());
        context.set(Hintreels::applicationNameKey, "Test");
        if (open && !index.open())
            qFatal("the index does not open");
    }
    ~SqliteIndexFixture() { index.close(); }

    /// The default name of the index's connection.
    static QString connection() { return "__Hintreels_Index__"; }

    QString databaseDirectory() const { return packages.path() + "/db"; }
    QString databaseFile() const { return databaseDirectory() + "/Zentora_Test_HRI.sqlite"; }

    QString packagePath(const QString &package) const
    {
        return packages.path() + '/' + package + ".hintreels";
    }

    QString add(const QString &package, const QString &name, const QByteArray &entries,
        const QByteArray &rootAttributes = "locale='en_US'")
    {
        const QString file = packages.writeControl(package, name, entries, rootAttributes);
        index.indexControlFile(file, packagePath(package));
        return file;
    }

    QString found(const QString &key, const QString &locale = "en_US")
    {
        Hintreels::HRXmlElement *root = nullptr;
        Hintreels::HRXmlElement *entry
            = index.retrieve(key, QLocale(locale), directory, depth, root);
        if (!entry)
            return QString();
        const std::unique_ptr<Hintreels::HRXmlElement> tree(root);
        return entry->attribute("n");
    }

    /// The first column of what a query on the index's own connection gives.
    QStringList rows(const QString &select)
    {
        QSqlQuery query(QSqlDatabase::database(connection()));
        if (!query.exec(select))
            qFatal("%s fails", qPrintable(select));
        QStringList rows;
        while (query.next())
            rows.append(query.value(0).toString());
        return rows;
    }

    MessageGuard messages;
    TestPackages packages;
    HRContext context;
    Hintreels::HRSQLiteIndex index{ &context, {} };
    QString directory;
    int depth = -1;
};

/// Another program's connection to a database file.
struct OtherConnection
{
    explicit OtherConnection(const QString &file)
        : database(QSqlDatabase::addDatabase("QSQLITE", "other"))
    {
        database.setDatabaseName(file);
        if (!database.open())
            qFatal("cannot open %s", qPrintable(file));
    }
    ~OtherConnection()
    {
        database = QSqlDatabase();
        QSqlDatabase::removeDatabase("other");
    }
    void execute(const QString &statement)
    {
        if (!QSqlQuery(database).exec(statement))
            qFatal("%s fails", qPrintable(statement));
    }

    QSqlDatabase database;
};
