// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/HRIndex.h"

#include "content/HRFilterAnswer_p.h"
#include "content/HRXmlElement.h"
#include "content/HRXmlParser.h"
#include "context/setting_p.h"
#include "index/HRIndex_p.h"
#include "index/control/HRControlTree_p.h"
#include "index/control/elementFilters_p.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>

namespace Hintreels {

void HRIndexPrivate::follow(HRContext *settings, HRIndex *index)
{
    context = settings;
    if (!settings)
        return;
    QObject::connect(
        settings, &HRContext::settingDidChange, index, [this](const HRContextKey &key) {
            if (key == packageSuffixKey)
                prepared.mappedPackage.clear();
        });
}

bool HRIndexPrivate::isControlFile(const QString &path)
{
    if (path.startsWith(u':')) {
        QFile resource(path);
        return resource.open(QIODevice::ReadOnly)
            && probe.isControlFile(
                [&](char *buffer, qint64 size) { return resource.read(buffer, size); });
    }
    if (prepared.file && prepared.is(path)) {
        const bool answer = isControlFile(*prepared.file);
        prepared.file.reset();
        return answer;
    }
    HRRegularFile file(QFile::encodeName(path));
    return file.isOpen() && isControlFile(file);
}

HRControlRecord HRIndexPrivate::record(const QString &path, int levels) const
{
    const QString &directory = depth.directory();
    const QString name = prepared.is(path) ? prepared.listed->name : path.mid(directory.size());
    return { directory, name, levels };
}

bool HRIndexPrivate::isControlFile(HRRegularFile &file)
{
    return probe.isControlFile([&](char *buffer, qint64 size) { return file.read(buffer, size); });
}

HRIndex::HRIndex(HRContext *context, const QStringList &paths)
    : d(new HRIndexPrivate)
{
    d->follow(context, this);
    d->paths = paths;
}

HRIndex::~HRIndex() = default;

HRContext &HRIndex::context()
{
    if (!d->context)
        d->follow(new HRContext(this), this);
    return *d->context;
}

const HRContext &HRIndex::context() const
{
    return const_cast<HRIndex *>(this)->context();
}

bool HRIndex::open()
{
    return true;
}

bool HRIndex::setup()
{
    if (setting(context(), clearIndexKey, true))
        clear();
    return true;
}

bool HRIndex::clear()
{
    return true;
}

bool HRIndex::close()
{
    return true;
}

bool HRIndex::remove()
{
    return true;
}

HRXmlElement *HRIndex::retrieve(
    const QString &key, const QLocale &locale, QString &directory, int &depth, HRXmlElement *&root)
{
    const quint32 number = keyNumber(key);
    for (HRControlRecord &record : d->records) {
        if (!d->reader.mayServe(record, number, locale))
            continue;
        const QString path = record.path();
        HRXmlElement *entry = load(key, path, locale, root);
        if (!entry)
            continue;
        depth = record.depth;
        directory = QFileInfo(path).absolutePath();
        return entry;
    }
    return nullptr;
}

bool HRIndex::store(HRXmlElement *, const QLocale &, const QString &filePath, int depth)
{
    d->records.addLast({ filePath, depth });
    return true;
}

void HRIndex::startUpdate()
{
    d->inUpdate = true;
}

void HRIndex::endUpdate()
{
    d->inUpdate = false;
}

QStringList HRIndex::keys()
{
    QStringList keys;
    for (const HRControlRecord &record : d->records) {
        if (d->reader.mayRead(record.path()))
            keys += keysOfControlFile(record.path());
    }
    return keys;
}

void HRIndex::indexControlFile(const QString &filePath, const QString &packagePath)
{
    const std::optional<int> depth = d->levels(filePath, packagePath);
    if (!depth || !d->isControlFile(filePath))
        return;
    if (d->records.addFirst(d->record(filePath, *depth)))
        mapPackageOf(filePath, packagePath);
}

HRXmlElement *HRIndex::load(
    const QString &key, const QString &filePath, const QLocale &locale, HRXmlElement *&root)
{
    if (!d->reader.mayRead(filePath))
        return nullptr;
    std::unique_ptr<HRXmlElement> tree = readOnlyTree(filePath, generateContentElement, key);
    if (!tree)
        return nullptr;
    root = nullptr;
    if (tree->children().size() != 1 || !servesLocale(*tree, locale))
        return nullptr;
    auto *entry = qobject_cast<HRXmlElement *>(tree->children().constFirst());
    // Key data comes first, so that it cannot forge where the entry comes from.
    loadKeyData(key, QString(), entry);
    entry->setAttribute(QStringLiteral("HRLocation"), filePath);
    entry->setAttribute(QStringLiteral("HRPackagName"), packageNameForLocation(filePath));
    root = tree.release();
    return entry;
}

void HRIndex::loadKeyData(const QString &key, const QString &, HRXmlElement *entry)
{
    const QString filePath = setting(context(), keyDataFileKey, QString());
    if (filePath.isEmpty())
        return;
    const QMap<QString, QString> attributes = keyDataAttributes(filePath, key);
    for (auto it = attributes.cbegin(); it != attributes.cend(); ++it)
        entry->setAttribute(it.key(), it.value());
}

QString HRIndex::packageNameForLocation(const QString &path) const
{
    return packageNameOf(path, setting(context(), packageSuffixKey, QStringLiteral("hintreels")));
}

void HRIndex::mapControlFile(const QString &, const QString &packagePath)
{
    d->packages.add(packageNameForLocation(packagePath), packagePath);
    d->componentQuestion.clear();
}

QStringList HRIndex::componentPathsForPackageNamed(const QString &name) const
{
    QStringList paths = d->packages.paths(name);
    const QString shared = setting(context(), componentDirectoryKey, QString());
    if (!shared.isEmpty())
        paths.append(shared);
    return paths;
}

QStringList HRIndex::componentPathsForElement(
    const HRXmlElement *element, const QString &relativePath) const
{
    const auto *root = qobject_cast<const HRXmlElement *>(element->parent());
    const QStringList question{ element->attribute(QStringLiteral("HRPackagName")),
        root ? root->attribute(QStringLiteral("search")) : QString(),
        setting(context(), componentDirectoryKey, QString()), relativePath };
    // A user interface that is being made asks the same for each of its texts.
    if (question != d->componentQuestion) {
        d->componentPaths = findComponentPaths(question[0], question[1], relativePath);
        d->componentQuestion = question;
    }
    return d->componentPaths;
}

QStringList HRIndex::findComponentPaths(
    const QString &package, const QString &search, const QString &relativePath) const
{
    QStringList paths = componentPathsForPackageNamed(package);
    if (!search.isEmpty())
        paths += d->packages.pathsOfSearchList(search);
    if (relativePath.isEmpty())
        return paths;
    for (QString &path : paths)
        path = QDir(path).absoluteFilePath(relativePath);
    return paths;
}

int HRIndex::indexDataShouldGenerateElement(const QString &tag, const QXmlAttributes &, void *)
{
    const bool isIndexed = tag == QLatin1String("hintreels") || tag == QLatin1String("hintreel");
    return isIndexed ? askForChildren : dropElement;
}

bool HRIndex::prepare(const HRDirectoryListing &listing, const HRListedFile &file)
{
    d->prepared.file.emplace(listing, file);
    return listing.hasResources() || d->prepared.file->isOpen();
}

void HRIndex::mapPackageOf(const QString &filePath, const QString &packagePath)
{
    const bool isScanned = d->prepared.is(filePath);
    if (isScanned && packagePath == d->prepared.mappedPackage)
        return;
    mapControlFile(QString(), packagePath);
    d->prepared.mappedPackage = isScanned ? packagePath : QString();
}

bool HRIndex::isInUpdate() const
{
    return d->inUpdate;
}

} // namespace Hintreels
