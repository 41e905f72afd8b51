// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "context/HRExport.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

class HRContext;
class QLocale;
class QXmlAttributes;

namespace Hintreels {

class HRXmlElement;
struct HRIndexPrivate;

/// Answers which control file holds a key's content for a locale, and loads that content.
///
/// The manager names the control files while it scans the packages. This class keeps everything in
/// memory; hosts that want another store derive from it, or hand in HRSQLiteIndex. Whoever makes an
/// index owns it; the manager never deletes one. GUI thread only. What cannot be read or does not
/// hold what was asked for ends silently in a null or empty result; XML errors go to Qt's debug
/// output.
class HINTREELS_EXPORT HRIndex : public QObject
{
    Q_OBJECT

public:
    /// @param context guarded, not owned; without one the index reads defaults
    /// @param paths the data paths, kept for subclasses and never read here
    HRIndex(HRContext *context, const QStringList &paths);
    ~HRIndex() override;

    /// The settings that the index reads. Where none were given, or theirs are gone, an empty
    /// context that the index owns.
    HRContext &context();
    /// The same, to be read only.
    const HRContext &context() const;

    // The order of the virtual operations is part of the interface.

    /// Makes the index ready; the manager calls it once. Nothing to do in memory: true.
    virtual bool open();
    /// Calls clear() where the setting clearIndexKey is true, its default. Always true.
    virtual bool setup();
    /// Forgets what is stored. Control files in memory stay known: true.
    virtual bool clear();
    /// Ends the use of the store. Nothing to do in memory: true.
    virtual bool close();
    /// Removes the store. Nothing to do in memory: true.
    virtual bool remove();

    /// Finds and loads a key's content; among several control files the newest named one wins.
    ///
    /// Locales match exactly, as QLocale compares them; a control file without a locale serves
    /// every locale. An edited control file is seen by the next call.
    /// @param directory receives the absolute path of the control file's directory
    /// @param depth receives the number of levels from the package directory down to the file
    /// @param root receives the result's parent; valid only where the result is not null
    /// @return the `hintreel` element or null; the caller owns @p root and the result with it
    virtual HRXmlElement *retrieve(const QString &key, const QLocale &locale, QString &directory,
        int &depth, HRXmlElement *&root);

    /// Records that a control file holds an entry; one record for each path and depth. In memory
    /// neither entry nor locale are looked at, and the file is tried last. Always true.
    ///
    /// The entry is borrowed: it lives until the indexControlFile() that hands it in returns.
    virtual bool store(
        HRXmlElement *entry, const QLocale &locale, const QString &filePath, int depth);

    /// Brackets a run of store() calls.
    virtual void startUpdate();
    /// Ends what startUpdate() began.
    virtual void endUpdate();

    /// Every key of every control file, repeated where several files or locales hold it. Reads all
    /// files.
    virtual QStringList keys();

    /// Takes a control file into the index, if it is one and lies below the package directory.
    ///
    /// Only the beginning of the file is read: its first element must be `hintreels`.
    /// @param filePath, packagePath canonical paths of a regular file and of its package directory
    virtual void indexControlFile(const QString &filePath, const QString &packagePath);

    /// Loads a key's content from one control file.
    ///
    /// The entry receives the attributes that the key-data file has for the key, then "HRLocation",
    /// the file's path, and "HRPackagName", its package.
    /// @param root receives the result's parent; valid only where the result is not null
    /// @return the entry, owned by @p root, which the caller owns; null where the file has not
    /// exactly one entry for the key, or serves another locale
    HRXmlElement *load(
        const QString &key, const QString &filePath, const QLocale &locale, HRXmlElement *&root);

    /// Copies a key's attributes from the key-data file (the setting keyDataFileKey) to an entry.
    /// @param location is not read
    void loadKeyData(const QString &key, const QString &location, HRXmlElement *entry);

    /// Name of the innermost package directory at or above a path; empty outside of packages.
    QString packageNameForLocation(const QString &path) const;

    /// Remembers a package directory under its package's name.
    /// @param controlFile is not read
    void mapControlFile(const QString &controlFile, const QString &packagePath);

    /// The directories of all packages of this name, then the setting componentDirectoryKey.
    QStringList componentPathsForPackageNamed(const QString &name) const;

    /// Where a component of an entry may lie: in the entry's own package, in the setting
    /// componentDirectoryKey, and in the packages that the root's `search` attribute names.
    /// @param relativePath joined to each directory; where it is empty the directories themselves
    /// @return candidates in the order in which to try them; none is tested for existence
    QStringList componentPathsForElement(
        const HRXmlElement *element, const QString &relativePath) const;

    /// Element filter for HRXmlParser that makes objects of `hintreels` and `hintreel` only.
    /// @param data is not read
    static int indexDataShouldGenerateElement(
        const QString &tag, const QXmlAttributes &attributes, void *data);

protected:
    /// Whether an update has begun and not ended.
    bool isInUpdate() const;

private:
    friend struct HRIndexPrivate;

    QStringList findComponentPaths(
        const QString &package, const QString &search, const QString &relativePath) const;

    std::unique_ptr<HRIndexPrivate> d;
};

} // namespace Hintreels
