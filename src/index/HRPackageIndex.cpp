// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/HRPackageIndex.h"

#include "context/HRContext.h"
#include "context/setting_p.h"
#include "index/HRIndex_p.h"
#include "index/database/HRDigestDatabase_p.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
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

/// Absolute path of the file to open; empty, after a message, where there is no directory for it.
QString digestsFilePath(const HRContext &context)
{
    QString directory = setting(context, persistentDirectoryKey, QString());
    if (directory.isEmpty() || !QFileInfo(directory).isDir())
        directory = defaultDirectory();
    if (!makeDirectory(directory)) {
        qDebug().noquote() << "No cache directory. Cannot create index database. Index will be "
                              "kept in memory";
        return QString();
    }
    const QString name = setting(context, indexFileNameKey, QString());
    return QDir(directory).absoluteFilePath(name.isEmpty() ? defaultName : name);
}

/// Where the database lies. A file that HRSQLiteIndex has filled may serve this index, too.
HRDatabasePlace digestsPlace(const HRContext &context)
{
    HRDatabasePlace place;
    place.path = digestsFilePath(context);
    place.connection = indexConnection(context);
    place.tables = QStringList{ QStringLiteral("packages"), QStringLiteral("hintreels"),
        HRDigestDatabase::tableName() };
    place.isOwn = place.path == QDir(defaultDirectory()).absoluteFilePath(defaultName);
    return place;
}

} // namespace

struct HRPackageIndexPrivate
{
    HRPackageIndexPrivate(HRPackageIndex &index, HRIndexPrivate &base)
        : memory(base)
        , digests([&index] { return index.setup(); })
    {
    }

    /// What is known of a file without a look at it, or else after one; false where it is no
    /// control file.
    bool recall(HRControlRecord &record, std::string_view name, const HRFileStamp &stamp);

    /// The same after a look at the file, which is then known.
    bool learn(HRControlRecord &record, std::string_view name);

    HRIndexPrivate &memory;
    HRDigestDatabase digests;
    bool willSave = false;
};

bool HRPackageIndexPrivate::recall(
    HRControlRecord &record, std::string_view name, const HRFileStamp &stamp)
{
    HRStoredFile file;
    record.stamp = stamp;
    record.isSettled = digests.find(name, stamp, file);
    if (!record.isSettled)
        return learn(record, name);
    record.digest = std::move(file.digest);
    return file.isControlFile;
}

bool HRPackageIndexPrivate::learn(HRControlRecord &record, std::string_view name)
{
    HRStoredFile file;
    const qint64 now = nanosecondsNow();
    file.isControlFile = memory.isControlFile(record.path());
    if (file.isControlFile && !memory.prefilter.read(record))
        return false;
    file.stamp = record.stamp;
    file.digest = record.digest;
    if (isSettled(file.stamp, now))
        digests.put(name, file);
    else
        digests.drop(name);
    return file.isControlFile;
}

HRPackageIndex::HRPackageIndex(HRContext *context, const QStringList &paths)
    : HRIndex(context, paths)
    , d(new HRPackageIndexPrivate(*this, HRIndexPrivate::of(*this)))
{
    // What the stamps of a listing tell is enough for most files.
    d->memory.opensListedFiles = false;
}

HRPackageIndex::~HRPackageIndex()
{
    HRPackageIndex::close();
}

bool HRPackageIndex::open()
{
    HRIndex::open();
    HRIndex::endUpdate();
    return d->digests.open(digestsPlace(context()));
}

bool HRPackageIndex::setup()
{
    return d->digests.setUp();
}

bool HRPackageIndex::clear()
{
    HRIndex::clear();
    d->digests.clear();
    return true;
}

bool HRPackageIndex::close()
{
    d->digests.close();
    HRIndex::endUpdate();
    return true;
}

bool HRPackageIndex::remove()
{
    d->digests.remove();
    HRIndex::endUpdate();
    return true;
}

void HRPackageIndex::indexControlFile(const QString &filePath, const QString &packagePath)
{
    const std::optional<int> depth = d->memory.levels(filePath, packagePath);
    if (!depth)
        return;
    HRControlRecord record = d->memory.record(filePath, *depth);
    if (d->digests.enter(record.directory))
        saveSoon();
    const HRListedControlFile *listed = d->memory.listed(filePath);
    const std::optional<HRFileStamp> stamp
        = listed ? listed->stamp : stampOfFile(record.directory, record.name);
    if (!stamp) {
        HRIndex::indexControlFile(filePath, packagePath); // it may be a Qt resource
        return;
    }
    const QByteArray encoded = listed ? QByteArray() : QFile::encodeName(record.name);
    const std::string_view name = listed
        ? listed->nativeName
        : std::string_view(encoded.constData(), size_t(encoded.size()));
    if (d->recall(record, name, *stamp) && d->memory.records.addFirst(std::move(record)))
        d->memory.mapPackageOf(filePath, packagePath);
}

/// Nobody tells when a scan is over; the first event after it does.
void HRPackageIndex::saveSoon()
{
    if (std::exchange(d->willSave, true))
        return;
    const auto save = [this] {
        d->willSave = false;
        d->digests.save();
        d->digests.removeMissing();
    };
    QMetaObject::invokeMethod(this, save, Qt::QueuedConnection);
}

} // namespace Hintreels
