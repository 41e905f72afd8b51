// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "context/HRContext.h"
#include "fuzz/FuzzTarget.h"
#include "index/HRPackageIndex.h"
#include "index/HRSQLiteIndex.h"
#include "support/Promises.h"
#include "support/TestPackage.h"

#include <QFile>

#include <memory>

using namespace Hintreels;

namespace {

/// A package, and a database beside it that holds whatever it is given.
struct Place
{
    Place()
        : controlFile(packages.writeControl("A", "a.xml", "<hintreel key='pen' title='Pen'/>"))
    {
        context.set(persistentDirectoryKey, packages.path());
        context.set(indexFileNameKey, "index.sqlite");
        context.set(clearIndexKey, false);
    }

    void writeDatabase(const QByteArray &bytes) const
    {
        const QString path = packages.write("index.sqlite", bytes);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    }

    /// The title that the index has for the one key.
    QString title(HRIndex &index) const
    {
        QString directory;
        int depth = 0;
        HRXmlElement *root = nullptr;
        const HRXmlElement *entry = index.retrieve("pen", QLocale("en_US"), directory, depth, root);
        const std::unique_ptr<HRXmlElement> owner(entry ? root : nullptr);
        return entry ? entry->attribute("title") : QString();
    }

    void name(HRIndex &index) const
    {
        index.indexControlFile(controlFile, packages.path() + "/A.hintreels");
    }

    TestPackages packages;
    QString controlFile;
    HRContext context;
};

// What it finds in a database is only believed where the file itself agrees.
void openPackageIndex(Place &place)
{
    HRPackageIndex index(&place.context, {});
    index.open();
    place.name(index);
    require(place.title(index) == "Pen", "a package index knows what it was named");
    require(index.keys() == QStringList("pen"), "a package index knows nothing else");
    index.close();
    index.remove();
}

void openCache(Place &place)
{
    HRSQLiteIndex index(&place.context, {});
    index.open();
    index.keys();
    place.title(index);
    place.name(index);
    place.title(index);
    index.close();
}

} // namespace

void fuzzDatabase(const QByteArray &input)
{
    static Place place;
    place.writeDatabase(input);
    openPackageIndex(place);
    place.writeDatabase(input);
    openCache(place);
}
