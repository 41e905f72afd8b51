// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "hintreels/check/Finding.h"
#include "index/HRPackageMap_p.h"

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

namespace Hintreels {

class ControlFile;

/// The name of the package that a path lies in; empty outside of all.
QString packageNameAt(const QString &path);

/// All packages that those under check can refer to.
class Shelf
{
public:
    /// Takes in the packages of a data path that the library would find there.
    void addDataPath(const QString &path);

    const HRPackageMap &map() const { return m_map; }
    const QStringList &names() const { return m_names; }

private:
    HRPackageMap m_map;
    QStringList m_names;
};

/// An entry of a package, as far as entries concern each other.
struct Entry
{
    QString key;
    QString locale; ///< as the library names it; empty for every locale
    Spot spot;
};

/// What the control files of a package want to show, by its kind.
enum class MediaKind
{
    picture,
    clip
};

/// A package under check: where its files lie, and what its control files told when they were read.
class Package
{
public:
    /// @param path absolute
    /// @param shelf must outlive this
    Package(const QString &path, const Shelf &shelf);

    const QString &path() const { return m_path; }
    const Shelf &shelf() const { return m_shelf; }
    QString controlDirectory() const { return m_path + QLatin1String("/Control"); }

    /// The XML files in which the library looks for hints; absolute paths.
    QStringList controlFiles() const;
    /// XML files in the package that the library never looks at.
    QStringList otherXmlFiles() const;
    /// Whether the package has a file `*.xml` in its control directory, or what may once be one.
    static bool looksLikePackage(const QString &path);

    /// Directories of the package and of those that a list as in `search` names.
    QStringList searchedDirectories(const QString &search) const;

    /// Takes down what concerns the package as a whole.
    void learn(const ControlFile &file);

    const QVector<Entry> &entries() const { return m_entries; }
    /// Files of the package that are shown, by their absolute paths.
    const QMap<QString, MediaKind> &media() const { return m_media; }

private:
    void learnMedia(const ControlFile &file);

    const QString m_path;
    const Shelf &m_shelf;
    QVector<Entry> m_entries;
    QMap<QString, MediaKind> m_media;
};

} // namespace Hintreels
