// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "hintreels/check/Package.h"

#include "hintreels/check/ControlFile.h"
#include "hintreels/check/resources.h"

#include <QDir>
#include <QDirIterator>
#include <QLocale>

namespace Hintreels {

namespace {

const QString suffix = QStringLiteral("hintreels");

QStringList xmlFilesIn(const QString &directory)
{
    QStringList files;
    const QFileInfoList found = QDir(directory).entryInfoList(
        { QStringLiteral("*.xml") }, QDir::Files | QDir::NoSymLinks, QDir::Name);
    for (const QFileInfo &file : found)
        files.append(file.absoluteFilePath());
    return files;
}

} // namespace

QString packageNameAt(const QString &path)
{
    return packageNameOf(path, suffix);
}

void Shelf::addDataPath(const QString &path)
{
    const QFileInfoList found = QDir(path).entryInfoList(
        { u'*' + QLatin1String(".") + suffix }, QDir::Dirs | QDir::NoSymLinks, QDir::Name);
    for (const QFileInfo &package : found) {
        const QString name = packageNameAt(package.absoluteFilePath());
        if (name.isEmpty() || !Package::looksLikePackage(package.absoluteFilePath()))
            continue;
        m_map.add(name, package.absoluteFilePath());
        if (!m_names.contains(name))
            m_names.append(name);
    }
}

Package::Package(const QString &path, const Shelf &shelf)
    : m_path(path)
    , m_shelf(shelf)
{
}

QStringList Package::controlFiles() const
{
    return xmlFilesIn(controlDirectory());
}

QStringList Package::otherXmlFiles() const
{
    const QStringList known = controlFiles();
    QStringList others;
    QDirIterator files(
        m_path, { QStringLiteral("*.xml") }, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        if (!known.contains(file))
            others.append(file);
    }
    others.sort();
    return others;
}

bool Package::looksLikePackage(const QString &path)
{
    return QFileInfo(path + QLatin1String("/Control")).isDir();
}

QStringList Package::searchedDirectories(const QString &search) const
{
    QStringList directories = m_shelf.map().paths(packageNameAt(m_path));
    if (!directories.contains(m_path))
        directories.prepend(m_path); // as if it were installed
    if (!search.isEmpty())
        directories += m_shelf.map().pathsOfSearchList(search);
    return directories;
}

void Package::learn(const ControlFile &file)
{
    if (!file.isIndexed() || !file.root())
        return;
    const QString name = file.root()->attribute("locale");
    const QString locale = name.isEmpty() ? QString() : QLocale(name).name();
    for (const Element &element : file.elements()) {
        if (element.isEntry() && element.node->hasAttribute(QStringLiteral("key"))) {
            m_entries.append(
                { element.attribute("key"), locale, element.spot(QStringLiteral("key")) });
        }
    }
    learnMedia(file);
}

void Package::learnMedia(const ControlFile &file)
{
    for (const Element &element : file.elements()) {
        if (!namesResource(element))
            continue;
        const QString path = findResource(element, element.attribute("source"));
        if (path.startsWith(m_path + u'/'))
            m_media.insert(QDir::cleanPath(path),
                element.tag() == QLatin1String("video") ? MediaKind::clip : MediaKind::picture);
    }
}

} // namespace Hintreels
