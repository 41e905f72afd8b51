// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/HRPackageIndex.h"

#include "content/HRXmlElement.h"
#include "context/HRContext.h"
#include "context/setting_p.h"
#include "index/HRIndex_p.h"
#include "index/database/HRDigestTable_p.h"
#include "index/database/HRDirectoryDigest_p.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSqlDatabase>
#include <QStandardPaths>

#include <optional>
#include <utility>

namespace Hintreels {

namespace {

const QString defaultName = QStringLiteral("HintreelsPackages.sqlite");

QString defaultDirectory()
{
    return QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
}

/// A directory that may be missing yet.
bool makeDirectory(const QString &path)
{
    return !path.isEmpty() && QDir().mkpath(path);
}

} // namespace

struct HRPackageIndexPrivate
{
    QString path; // of the database's file, as the settings gave it when it was opened
    std::optional<HRDigestTable> store; // none while the database is closed
    QString directory; // the one whose files are being indexed, with its slash
    HRDirectoryDigest digest; // of that directory
    bool isChanged = false; // whether the digest differs from the stored one
    bool willSave = false;
    bool isCorrupt = false;
    bool isRebuilt = false;
};

HRPackageIndex::HRPackageIndex(HRContext *context, const QStringList &paths)
    : HRSQLiteIndex(context, paths)
    , d(new HRPackageIndexPrivate)
{
}

HRPackageIndex::~HRPackageIndex()
{
    HRPackageIndex::close();
}

bool HRPackageIndex::open()
{
    leaveDirectory();
    d->store.reset();
    d->isCorrupt = false;
    if (HRSQLiteIndex::open())
        return true;
    if (!d->isCorrupt || d->isRebuilt)
        return false;
    rebuild();
    return d->store.has_value();
}

bool HRPackageIndex::setup()
{
    if (!database().isValid())
        return true;
    d->store.emplace(database());
    if (d->store->isUsable())
        return true;
    d->isCorrupt = d->store->isCorrupt();
    if (d->isCorrupt)
        holdCorruptFile();
    d->store.reset();
    return false;
}

bool HRPackageIndex::clear()
{
    HRIndex::clear();
    d->directory.clear();
    if (d->store)
        d->store->clear();
    return true;
}

bool HRPackageIndex::close()
{
    saveNow();
    d->store.reset();
    closeDatabase();
    return true;
}

bool HRPackageIndex::remove()
{
    d->store.reset();
    return HRSQLiteIndex::remove();
}

HRXmlElement *HRPackageIndex::retrieve(
    const QString &key, const QLocale &locale, QString &directory, int &depth, HRXmlElement *&root)
{
    return HRIndex::retrieve(key, locale, directory, depth, root);
}

bool HRPackageIndex::store(
    HRXmlElement *entry, const QLocale &locale, const QString &filePath, int depth)
{
    return HRIndex::store(entry, locale, filePath, depth);
}

void HRPackageIndex::startUpdate()
{
    HRIndex::startUpdate();
}

void HRPackageIndex::endUpdate()
{
    HRIndex::endUpdate();
}

QStringList HRPackageIndex::keys()
{
    return HRIndex::keys();
}

void HRPackageIndex::indexControlFile(const QString &filePath, const QString &packagePath)
{
    const std::optional<int> depth = memory().levels(filePath, packagePath);
    if (!depth)
        return;
    HRControlRecord record = memory().record(filePath, *depth);
    enterDirectory(record.directory);
    const bool isPrepared = memory().prepared.is(filePath);
    const std::optional<HRFileStamp> stamp
        = isPrepared ? memory().prepared.stamp : stampOfFile(record.directory, record.name);
    if (!stamp) {
        HRIndex::indexControlFile(filePath, packagePath); // it may be a Qt resource
        return;
    }
    const QByteArray encoded = isPrepared ? QByteArray() : QFile::encodeName(record.name);
    const std::string_view name = isPrepared
        ? memory().prepared.nativeName
        : std::string_view(encoded.constData(), size_t(encoded.size()));
    if (recall(record, name, *stamp) && memory().records.addFirst(std::move(record)))
        mapPackageOf(filePath, packagePath);
}

QString HRPackageIndex::databaseFilePath()
{
    QString directory = setting(context(), persistentDirectoryKey, QString());
    if (directory.isEmpty() || !QFileInfo(directory).isDir())
        directory = defaultDirectory();
    if (!makeDirectory(directory)) {
        qDebug().noquote() << "No cache directory. Cannot create index database. Index will be "
                              "kept in memory";
        return QString();
    }
    const QString name = setting(context(), indexFileNameKey, QString());
    d->path = QDir(directory).absoluteFilePath(name.isEmpty() ? defaultName : name);
    return d->path;
}

QStringList HRPackageIndex::tableNames() const
{
    return HRSQLiteIndex::tableNames() << HRDigestTable::tableName();
}

bool HRPackageIndex::isOwnPlace(const QString &path) const
{
    return path == QDir(defaultDirectory()).absoluteFilePath(defaultName);
}

bool HRPackageIndex::openAnew(const QString &path)
{
    qDebug().noquote() << "Index database is damaged. It is made anew";
    d->isRebuilt = true;
    return HRSQLiteIndex::openAnew(path);
}

/// Fills a record from the database or, where that knows another state of the file, from the file;
/// false where it is no control file.
bool HRPackageIndex::recall(
    HRControlRecord &record, std::string_view name, const HRFileStamp &stamp)
{
    HRStoredFile file;
    record.isSettled = d->digest.find(name, stamp, file);
    record.stamp = stamp;
    if (!record.isSettled) {
        const qint64 now = nanosecondsNow();
        file.isControlFile = memory().isControlFile(record.path());
        if (file.isControlFile && !memory().reader.read(record))
            return false;
        file.stamp = record.stamp;
        file.digest = record.digest;
        if (isSettled(file.stamp, now))
            d->digest.put(name, file);
        else
            d->digest.remove(name);
        d->isChanged = true;
    } else {
        record.digest = std::move(file.digest);
    }
    return file.isControlFile;
}

void HRPackageIndex::enterDirectory(const QString &directory)
{
    if (directory == d->directory)
        return;
    leaveDirectory();
    d->directory = directory;
    const QByteArray stored = d->store ? d->store->load(d->directory) : QByteArray();
    if (!stored.isEmpty()) {
        std::optional<HRDirectoryDigest> digest = HRDirectoryDigest::decoded(stored);
        d->isCorrupt = !digest;
        if (digest)
            d->digest = std::move(*digest);
    }
    rebuildIfCorrupt();
    saveSoon();
}

void HRPackageIndex::leaveDirectory()
{
    if (d->directory.isEmpty())
        return;
    for (const QByteArray &name : d->digest.untouched()) {
        if (stampOfFile(QFile::encodeName(d->directory) + name))
            continue;
        d->digest.remove({ name.constData(), size_t(name.size()) });
        d->isChanged = true;
    }
    if (d->store && d->isChanged)
        d->store->save(d->directory, d->digest.encoded());
    d->digest = HRDirectoryDigest();
    d->directory.clear();
    d->isChanged = false;
}

/// Nobody tells when a scan is over; the first event after it does.
void HRPackageIndex::saveSoon()
{
    if (std::exchange(d->willSave, true))
        return;
    const auto save = [this] {
        d->willSave = false;
        saveNow();
        if (d->store)
            d->store->removeMissing();
    };
    QMetaObject::invokeMethod(this, save, Qt::QueuedConnection);
}

void HRPackageIndex::saveNow()
{
    leaveDirectory();
    if (d->store)
        d->store->flush();
    rebuildIfCorrupt();
}

void HRPackageIndex::rebuildIfCorrupt()
{
    d->isCorrupt = d->isCorrupt || (d->store && d->store->isCorrupt());
    if (d->isCorrupt)
        rebuild();
}

/// Once in a run: a disk that corrupts what was just written is not worth a second try.
void HRPackageIndex::rebuild()
{
    d->isCorrupt = false;
    d->store.reset();
    if (database().isValid())
        holdCorruptFile();
    closeDatabase();
    if (d->isRebuilt)
        removeCorruptFile();
    else
        openAnew(d->path);
}

} // namespace Hintreels
