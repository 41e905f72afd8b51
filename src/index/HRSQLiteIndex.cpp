// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/HRSQLiteIndex.h"

#include "content/HRXmlElement.h"
#include "context/HRContext.h"
#include "context/printable_p.h"
#include "context/setting_p.h"
#include "index/HRIndex_p.h"
#include "index/control/HRControlTree_p.h"
#include "index/database/HRCacheDatabase_p.h"
#include "index/database/HRHeldEntries_p.h"
#include "index/database/HRIndexLookup_p.h"
#include "index/database/HRIndexUpdate_p.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include <optional>

namespace Hintreels {

namespace {

constexpr char PackagesTable[]
    = "CREATE TABLE IF NOT EXISTS packages( pkey INTEGER PRIMARY KEY AUTOINCREMENT, ppath TEXT, "
      "depth INTEGER )";
constexpr char HintreelsTable[]
    = "CREATE TABLE IF NOT EXISTS hintreels ( hrkey TEXT, tlocale TEXT, pkey INTEGER, PRIMARY "
      "KEY(hrkey, tlocale ))";
// The database can always be filled again, so speed counts for more than surviving a crash.
constexpr const char *Pragmas[] = { "PRAGMA synchronous=OFF", "PRAGMA count_changes=OFF",
    "PRAGMA journal_mode=MEMORY", "PRAGMA temp_store=MEMORY" };
// A process that is killed as it commits leaves half of its pages in the file. The next start that
// clears the tables makes that good; others that have the file open, and starts that keep what
// earlier runs stored, would answer from it.
constexpr char JournalOnDisk[] = "PRAGMA journal_mode=DELETE";

const QString selectKeys = QStringLiteral("SELECT hrkey FROM hintreels");
const QString selectKeysAndLocales = QStringLiteral("SELECT hrkey, tlocale FROM hintreels");

bool isUsableDirectory(const QString &path)
{
    return !path.isEmpty() && QFileInfo(path).isDir();
}

/// Absolute path of the file to open; empty, after a message, where the settings give none.
QString databaseFilePath(const HRContext &context)
{
    QString directory = setting(context, persistentDirectoryKey, QString());
    if (!isUsableDirectory(directory))
        directory = QDir::tempPath();
    if (directory.isEmpty() || !QFileInfo::exists(directory)) {
        qDebug().noquote() << "No persistent temp directory. Cannot create index database. Index "
                              "will be disabled";
        return QString();
    }
    QString name = setting(context, indexFileNameKey, QString());
    if (name.isEmpty()) {
        const QString application = setting(context, applicationNameKey, QString());
        if (application.isEmpty()) {
            qDebug().noquote() << "No Application name. Cannot create index database. Index will "
                                  "be disabled";
            return QString();
        }
        name = QStringLiteral("%1_%2_HRI.sqlite")
                   .arg(setting(context, organizationNameKey, QStringLiteral("Zentora")),
                       application);
    }
    return QDir(directory).absoluteFilePath(name);
}

HRDatabasePlace databasePlace(const HRContext &context)
{
    HRDatabasePlace place;
    place.path = databaseFilePath(context);
    place.connection = indexConnection(context);
    place.tables = QStringList{ QStringLiteral("packages"), QStringLiteral("hintreels") };
    return place;
}

} // namespace

struct HRSQLiteIndexPrivate
{
    explicit HRSQLiteIndexPrivate(HRSQLiteIndex &index);

    HRCacheDatabase cache;
    HRIndexDatabase &database = cache.connection();
    HRHeldEntries held; // none while closed
    std::optional<HRIndexLookup> lookup; // this and all that follows is gone while closed
    std::optional<HRIndexUpdate> update;

    /// Where a key is found for a locale: what is held is newer than what the database has.
    std::optional<HRIndexLookup::File> find(const QString &key, const QString &locale);

    /// One row's key for each key and locale that is not held, then the keys that are.
    QStringList keys();

    /// To be called before the database is closed: queries go before their connection.
    void letGo();
};

HRSQLiteIndexPrivate::HRSQLiteIndexPrivate(HRSQLiteIndex &index)
    : cache([this, &index] {
        if (index.setup())
            return true;
        letGo();
        return false;
    })
{
}

std::optional<HRIndexLookup::File> HRSQLiteIndexPrivate::find(
    const QString &key, const QString &locale)
{
    if (!lookup)
        lookup.emplace(database.handle());
    const HRIndexEntry *entry = held.find(key, locale);
    if (!entry)
        return lookup->find(key, locale);
    const int depth = lookup->depthOf(entry->filePath).value_or(entry->depth);
    return HRIndexLookup::File{ entry->filePath, depth };
}

QStringList HRSQLiteIndexPrivate::keys()
{
    QSqlQuery query(database.handle());
    query.setForwardOnly(true);
    if (!query.exec(held.isEmpty() ? selectKeys : selectKeysAndLocales))
        reportSqlError("Could not retrieve keys:", query.lastError());
    QStringList keys;
    while (query.next()) {
        const QString key = query.value(0).toString();
        if (held.isEmpty() || !held.find(key, query.value(1).toString()))
            keys.append(key);
    }
    return keys + held.keys();
}

void HRSQLiteIndexPrivate::letGo()
{
    update.reset();
    held.clear();
    lookup.reset();
}

HRSQLiteIndex::HRSQLiteIndex(HRContext *context, const QStringList &paths)
    : HRIndex(context, paths)
    , d(new HRSQLiteIndexPrivate(*this))
{
    // Every file is parsed, by its path.
    HRIndexPrivate::of(*this).opensListedFiles = false;
}

HRSQLiteIndex::~HRSQLiteIndex()
{
    closeDatabase();
}

bool HRSQLiteIndex::open()
{
    HRIndex::open();
    closeDatabase();
    return d->cache.open(databasePlace(context())) || (d->cache.isCorrupt() && d->cache.openAnew());
}

bool HRSQLiteIndex::setup()
{
    if (!d->database.isOpen())
        return HRIndex::setup();
    if (!d->database.isSound())
        return false;
    // Taking the lock first makes one statement, and not each, wait for a locked database.
    if (!isInUpdate() && !d->database.lock("Could not create package table:"))
        return false;
    HRIndex::setup();
    QSqlQuery mark(d->database.handle());
    markAsOurs(mark);
    const bool made = d->database.execute(PackagesTable, "Could not create package table:")
        && d->database.execute(HintreelsTable, "Could not create hintreels table:");
    if (!isInUpdate() && !d->database.commit("Could not create hintreels table:"))
        return false;
    for (const char *pragma : Pragmas)
        QSqlQuery(d->database.handle()).exec(QLatin1String(pragma));
    if (!setting(context(), clearIndexKey, true))
        QSqlQuery(d->database.handle()).exec(QLatin1String(JournalOnDisk));
    return made && !d->database.isCorrupt();
}

bool HRSQLiteIndex::clear()
{
    HRIndex::clear();
    d->held.clear();
    if (!d->database.isOpen())
        return true;
    d->database.execute("DROP TABLE IF EXISTS hintreels", "Could not drop package table:");
    d->database.execute("DROP TABLE IF EXISTS packages", "Could not drop package table:");
    if (d->update)
        d->update->forget();
    return true;
}

bool HRSQLiteIndex::close()
{
    const bool removes = setting(context(), removeIndexOnCloseKey, true);
    if (!removes)
        storeHeld();
    closeDatabase();
    if (removes)
        remove();
    return true;
}

bool HRSQLiteIndex::remove()
{
    // Not by way of close(), which calls this.
    closeDatabase();
    d->cache.remove();
    return true;
}

HRXmlElement *HRSQLiteIndex::retrieve(
    const QString &key, const QLocale &locale, QString &directory, int &depth, HRXmlElement *&root)
{
    if (!d->database.isOpen())
        return HRIndex::retrieve(key, locale, directory, depth, root);
    const std::optional<HRIndexLookup::File> file = d->find(key, locale.name());
    if (!file)
        return nullptr;
    depth = file->depth;
    directory = QFileInfo(file->path).absolutePath();
    qDebug().noquote() << printable(QStringLiteral("SQL load from ") + file->path);
    return load(key, file->path, locale, root);
}

bool HRSQLiteIndex::store(
    HRXmlElement *entry, const QLocale &locale, const QString &filePath, int depth)
{
    if (!isInUpdate() || !d->update || !entry)
        return HRIndex::store(entry, locale, filePath, depth);
    return d->update->store(
        { entry->attribute(QStringLiteral("key")), locale.name(), filePath, depth });
}

void HRSQLiteIndex::startUpdate()
{
    if (isInUpdate() || !d->database.isOpen())
        return;
    HRIndex::startUpdate();
    if (!d->update)
        d->update.emplace(d->database, d->held);
    d->update->begin();
}

void HRSQLiteIndex::endUpdate()
{
    if (!isInUpdate() || !d->update)
        return;
    d->update->end();
    HRIndex::endUpdate();
}

QStringList HRSQLiteIndex::keys()
{
    return d->database.isOpen() ? d->keys() : HRIndex::keys();
}

void HRSQLiteIndex::indexControlFile(const QString &filePath, const QString &packagePath)
{
    const std::optional<int> depth = HRIndexPrivate::of(*this).levels(filePath, packagePath);
    if (!depth)
        return;
    const HRControlTree tree(filePath, indexDataShouldGenerateElement, nullptr);
    const HRXmlElement *root = tree.first();
    if (!root)
        return;
    startUpdate();
    if (d->update)
        d->update->expect(filePath);
    const QLocale locale(root->attribute(QStringLiteral("locale")));
    for (QObject *child : root->children()) {
        auto *entry = qobject_cast<HRXmlElement *>(child);
        if (entry && entry->hasAttribute(QStringLiteral("key")))
            store(entry, locale, filePath, *depth);
    }
    endUpdate();
}

/// A last try, for the runs that follow.
void HRSQLiteIndex::storeHeld()
{
    if (d->held.isEmpty() || isInUpdate())
        return;
    HRSQLiteIndex::startUpdate();
    HRSQLiteIndex::endUpdate();
}

void HRSQLiteIndex::closeDatabase()
{
    d->letGo();
    HRIndex::endUpdate();
    d->cache.close();
}

} // namespace Hintreels
