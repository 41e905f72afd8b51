// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

class PackageTree;

// What the figures are held against: the least that the same answer costs with the same means.
// These are programs of their own and call nothing of the library.

namespace Baseline {

/// `stat` of every control file.
void statAll(const PackageTree &tree);

/// Opens, reads and searches the bytes of every control file.
void searchAll(const PackageTree &tree, const QByteArray &bytes);

/// Qt's SAX reader over a file, with a handler that does nothing.
void parse(const QString &path);

/// Lists every control directory, and opens and reads the first kilobyte of each file.
void listAndReadHeads(const PackageTree &tree);

/// Lists every control directory, with a `stat` of each file.
void listAndStat(const PackageTree &tree);

/// Qt's SAX reader over some files, and their keys in one transaction through QSqlQuery.
/// @param database the path of a file, which is made anew
void fillDatabase(const PackageTree &tree, int firstFile, int step, const QString &database);

/// A database filled by fillDatabase(), and its statement for looking up, prepared once.
class Lookup
{
public:
    /// @param connection the name of a connection that nobody else uses
    Lookup(const QString &database, const QString &connection);
    ~Lookup();
    bool find(const QString &key, const QString &locale);

private:
    struct Statement;
    Statement *m_statement;
};

/// Copies a text and looks every name up in a map, as an expansion has to.
QString copyAndLookUp(
    const QString &text, const QStringList &names, const QMap<QString, QVariant> &values);

} // namespace Baseline
