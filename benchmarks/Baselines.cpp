// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "Baselines.h"

#include "Measuring.h"
#include "PackageTree.h"

#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QXmlDefaultHandler>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

#include <cstring>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Baseline {

namespace {

/// Notes the keys of a control file as a reader of its own would.
class KeyHandler : public QXmlDefaultHandler
{
public:
    QStringList keys;
    QString locale;

    bool startElement(const QString &, const QString &, const QString &name,
        const QXmlAttributes &attributes) override
    {
        if (name == QLatin1String("hintreel"))
            keys.append(attributes.value(QLatin1String("key")));
        else if (name == QLatin1String("hintreels"))
            locale = attributes.value(QLatin1String("locale"));
        return true;
    }
};

void parseWith(QXmlDefaultHandler &handler, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        cannotMeasure("cannot read " + path);
    QXmlInputSource source(&file);
    QXmlSimpleReader reader;
    reader.setContentHandler(&handler);
    if (!reader.parse(source))
        cannotMeasure("cannot parse " + path);
}

template <typename Visit>
void list(const PackageTree &tree, Visit visit)
{
    for (const QByteArray &path : tree.controlDirectories()) {
        DIR *directory = ::opendir(path.constData());
        while (const dirent *entry = ::readdir(directory)) {
            if (entry->d_name[0] != '.')
                visit(::dirfd(directory), entry->d_name);
        }
        ::closedir(directory);
    }
}

void makeTables(const QSqlDatabase &database)
{
    QSqlQuery query(database);
    for (const char *statement :
        { "PRAGMA synchronous=OFF", "PRAGMA journal_mode=MEMORY", "PRAGMA temp_store=MEMORY",
            "CREATE TABLE packages( pkey INTEGER PRIMARY KEY AUTOINCREMENT, ppath TEXT, depth "
            "INTEGER )",
            "CREATE TABLE hintreels ( hrkey TEXT, tlocale TEXT, pkey INTEGER, PRIMARY KEY(hrkey, "
            "tlocale ))" }) {
        if (!query.exec(statement))
            cannotMeasure(statement + QString(" fails"));
    }
}

void storeKeys(const PackageTree &tree, int firstFile, int step, const QSqlDatabase &database)
{
    QSqlQuery insertPackage(database);
    insertPackage.prepare("INSERT INTO packages ( ppath, depth ) VALUES ( ?, ? )");
    QSqlQuery replaceItem(database);
    replaceItem.prepare("REPLACE INTO hintreels ( hrkey, tlocale, pkey ) VALUES ( ?, ?, ? )");
    for (size_t i = size_t(firstFile); i < tree.files().size(); i += size_t(step)) {
        KeyHandler handler;
        parseWith(handler, tree.files()[i].path);
        insertPackage.bindValue(0, tree.files()[i].path);
        insertPackage.bindValue(1, 2);
        insertPackage.exec();
        const QVariant package = insertPackage.lastInsertId();
        for (const QString &key : handler.keys) {
            replaceItem.bindValue(0, key);
            replaceItem.bindValue(1, handler.locale);
            replaceItem.bindValue(2, package);
            replaceItem.exec();
        }
    }
}

} // namespace

void statAll(const PackageTree &tree)
{
    for (const PackageTree::File &file : tree.files()) {
        struct stat status;
        if (::stat(file.nativePath.constData(), &status) != 0)
            cannotMeasure("cannot stat " + file.path);
    }
}

void searchAll(const PackageTree &tree, const QByteArray &bytes)
{
    std::vector<char> buffer(1 << 20);
    for (const PackageTree::File &file : tree.files()) {
        const int descriptor = ::open(file.nativePath.constData(), O_RDONLY);
        const ssize_t length = ::read(descriptor, buffer.data(), buffer.size());
        ::close(descriptor);
        if (::memmem(buffer.data(), size_t(length), bytes.constData(), size_t(bytes.size())))
            cannotMeasure(file.path + " holds the key");
    }
}

void parse(const QString &path)
{
    QXmlDefaultHandler handler;
    parseWith(handler, path);
}

void listAndReadHeads(const PackageTree &tree)
{
    char head[1024];
    list(tree, [&head](int directory, const char *name) {
        const int descriptor = ::openat(directory, name, O_RDONLY);
        if (::read(descriptor, head, sizeof head) <= 0)
            cannotMeasure("cannot read " + QString(name));
        ::close(descriptor);
    });
}

void listAndStat(const PackageTree &tree)
{
    list(tree, [](int directory, const char *name) {
        struct stat status;
        if (::fstatat(directory, name, &status, 0) != 0)
            cannotMeasure("cannot stat " + QString(name));
    });
}

void fillDatabase(const PackageTree &tree, int firstFile, int step, const QString &path)
{
    QFile::remove(path);
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", "baseline");
        database.setDatabaseName(path);
        if (!database.open())
            cannotMeasure("cannot open " + path);
        makeTables(database);
        database.transaction();
        storeKeys(tree, firstFile, step, database);
        database.commit();
    }
    QSqlDatabase::removeDatabase("baseline");
}

struct Lookup::Statement
{
    QSqlDatabase database;
    QSqlQuery query;
};

Lookup::Lookup(const QString &path, const QString &connection)
    : m_statement(new Statement)
{
    m_statement->database = QSqlDatabase::addDatabase("QSQLITE", connection);
    m_statement->database.setDatabaseName(path);
    m_statement->database.open();
    m_statement->query = QSqlQuery(m_statement->database);
    m_statement->query.setForwardOnly(true);
    if (!m_statement->query.prepare(
            "SELECT packages.ppath, packages.depth FROM hintreels, packages WHERE "
            "hintreels.hrkey = ? AND hintreels.tlocale = ? AND hintreels.pkey = packages.pkey"))
        cannotMeasure("cannot prepare");
}

Lookup::~Lookup()
{
    const QString connection = m_statement->database.connectionName();
    delete m_statement;
    QSqlDatabase::removeDatabase(connection);
}

bool Lookup::find(const QString &key, const QString &locale)
{
    m_statement->query.bindValue(0, key);
    m_statement->query.bindValue(1, locale);
    m_statement->query.exec();
    return m_statement->query.next();
}

QString copyAndLookUp(
    const QString &text, const QStringList &names, const QMap<QString, QVariant> &values)
{
    QString copy;
    copy.reserve(text.size());
    copy.append(text.constData(), text.size());
    for (const QString &name : names)
        copy.append(values.value(name).toString());
    return copy;
}

} // namespace Baseline
