// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/HRIndex.h"

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
#include <QScopedValueRollback>

namespace Hintreels {

HRIndexPrivate &HRIndexPrivate::of(HRIndex &index)
{
    return *index.d;
}

void HRIndexPrivate::follow(HRContext *settings)
{
    context = settings;
    if (!settings)
        return;
    QObject::connect(
        settings, &HRContext::settingDidChange, &index, [this](const HRContextKey &key) {
            if (key == packageSuffixKey)
                m_mappedPackage.clear();
        });
}

void HRIndexPrivate::indexListing(
    const HRDirectoryListing &listing, const QString &packagePath, const Wanted &isWanted)
{
    HRListedControlFile file;
    // A host's indexControlFile() may index another listing.
    const QScopedValueRollback<HRListedControlFile *> outer(m_listed, &file);
    for (const HRListedFile &entry : listing.files()) {
        file.path.resize(0); // keeps its memory
        file.path += listing.directory();
        file.path += entry.name;
        file.name = entry.name;
        file.nativeName = listing.nativeName(entry);
        if (look(listing, entry) && isWanted(file.path, file.stamp))
            index.indexControlFile(file.path, packagePath);
    }
    m_mappedPackage.clear();
}

/// Looks at a file in the cheapest way that serves indexControlFile(); false where it may not be
/// read.
bool HRIndexPrivate::look(const HRDirectoryListing &listing, const HRListedFile &entry)
{
    if (!opensListedFiles) {
        m_listed->stamp = listing.stampOfReadable(entry);
    } else {
        const HRRegularFile &file = m_listed->file.emplace(listing, entry);
        m_listed->stamp = file.isOpen() ? std::optional(file.stamp()) : std::nullopt;
    }
    return m_listed->stamp || listing.hasResources();
}

bool HRIndexPrivate::isControlFile(const QString &path)
{
    if (path.startsWith(u':')) {
        QFile resource(path);
        return resource.open(QIODevice::ReadOnly)
            && probe.isControlFile(
                [&](char *buffer, qint64 size) { return resource.read(buffer, size); });
    }
    HRListedControlFile *known = listed(path);
    if (known && known->file) {
        const bool answer = isControlFile(*known->file);
        known->file.reset();
        return answer;
    }
    HRRegularFile file(QFile::encodeName(path));
    return file.isOpen() && isControlFile(file);
}

HRControlRecord HRIndexPrivate::record(const QString &path, int levels) const
{
    const QString &directory = depth.directory();
    const HRListedControlFile *known = listed(path);
    return { directory, known ? known->name : path.mid(directory.size()), levels };
}

void HRIndexPrivate::mapPackageOf(const QString &filePath, const QString &packagePath)
{
    const bool isListed = listed(filePath);
    if (isListed && packagePath == m_mappedPackage)
        return;
    index.mapControlFile(QString(), packagePath);
    m_mappedPackage = isListed ? packagePath : QString();
}

bool HRIndexPrivate::isControlFile(HRRegularFile &file)
{
    return probe.isControlFile([&](char *buffer, qint64 size) { return file.read(buffer, size); });
}

HRIndex::HRIndex(HRContext *context, const QStringList &paths)
    : d(new HRIndexPrivate(*this))
{
    d->follow(context);
    d->paths = paths;
}

HRIndex::~HRIndex() = default;

HRContext &HRIndex::context()
{
    if (!d->context)
        d->follow(new HRContext(this));
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
        if (!d->prefilter.mayServe(record, number, locale))
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
        if (d->prefilter.mayRead(record.path()))
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
        d->mapPackageOf(filePath, packagePath);
}

HRXmlElement *HRIndex::load(
    const QString &key, const QString &filePath, const QLocale &locale, HRXmlElement *&root)
{
    if (!d->prefilter.mayRead(filePath))
        return nullptr;
    std::unique_ptr<HRXmlElement> tree
        = readOnlyTree(filePath, generateContentElement, key, d->errors);
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

int HRIndex::indexDataShouldGenerateElement(
    const QString &tag, const QXmlAttributes &attributes, void *data)
{
    return generateIndexElement(tag, attributes, data);
}

bool HRIndex::isInUpdate() const
{
    return d->inUpdate;
}

} // namespace Hintreels
