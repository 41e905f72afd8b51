// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "Figures.h"

#include "Baselines.h"
#include "Measuring.h"
#include "PackageTree.h"
#include "RatioTable.h"
#include "context/HRContext.h"
#include "index/HRPackageIndex.h"
#include "index/HRSQLiteIndex.h"

#include <QDir>
#include <QTemporaryDir>

#include <map>
#include <memory>

using namespace Hintreels;

namespace {

/// Where the databases of one size lie, ours and those of the baselines.
struct Databases
{
    QTemporaryDir directory;
    HRContext context;

    explicit Databases(int files)
    {
        context.set(persistentDirectoryKey, directory.path());
        context.set(applicationNameKey, "Bench");
        context.set(indexConnectionKey, QString("bench%1").arg(files));
    }

    QString path(const QString &name) const { return QDir(directory.path()).filePath(name); }
};

std::map<int, std::unique_ptr<Databases>> allDatabases;
std::map<int, std::unique_ptr<HRSQLiteIndex>> filledIndexes;
std::map<int, std::unique_ptr<Baseline::Lookup>> filledLookups;

Databases &databases(int files)
{
    std::unique_ptr<Databases> &some = allDatabases[files];
    if (!some)
        some = std::make_unique<Databases>(files);
    return *some;
}

void fill(HRSQLiteIndex &index, int files)
{
    expect(index.open(), true);
    scan(index, settledTree(files));
}

/// An index in SQLite that stays open and filled.
HRSQLiteIndex &filledIndex(int files)
{
    std::unique_ptr<HRSQLiteIndex> &index = filledIndexes[files];
    if (!index) {
        HRContext *context = new HRContext(databases(files).context);
        context->set(indexConnectionKey, QString("filled%1").arg(files));
        context->set(indexFileNameKey, "filled.sqlite");
        index = std::make_unique<HRSQLiteIndex>(context, QStringList());
        context->setParent(index.get());
        fill(*index, files);
    }
    return *index;
}

Baseline::Lookup &filledLookup(int files)
{
    std::unique_ptr<Baseline::Lookup> &lookup = filledLookups[files];
    if (!lookup) {
        const QString path = databases(files).path("lookup.sqlite");
        Baseline::fillDatabase(settledTree(files), 0, 1, path);
        lookup = std::make_unique<Baseline::Lookup>(path, QString("lookup%1").arg(files));
    }
    return *lookup;
}

/// The host is ready when everything is scanned; what changed is stored in its first idle moment.
double startPackageIndex(int files)
{
    HRPackageIndex index(&databases(files).context, {});
    return seconds([&] {
        expect(index.open(), true);
        scan(index, settledTree(files));
    });
}

double startAndStorePackageIndex(int files)
{
    HRPackageIndex index(&databases(files).context, {});
    return seconds([&] {
        expect(index.open(), true);
        scan(index, settledTree(files));
        index.close();
    });
}

// Every hundredth file.
constexpr int ChangedStep = 100;

void editSome(int files)
{
    for (int file = 0; file < files; file += ChangedStep)
        settledTree(files).edit(file);
    waitUntilSettled();
}

void addSqliteFigures(RatioTable &table, int files)
{
    table.add({ "HRSQLiteIndex: filling", files, 1.3,
        [=] {
            const QString path = databases(files).path("filling.sqlite");
            return seconds([&] { Baseline::fillDatabase(settledTree(files), 0, 1, path); });
        },
        [=] {
            HRSQLiteIndex index(&databases(files).context, {});
            const double taken = seconds([&] { fill(index, files); });
            index.close();
            return taken;
        },
        files > 1000 ? 5 : 10 });
    table.add({ "HRSQLiteIndex: key that nobody has, all locales", files, 1.5,
        [=] {
            Baseline::Lookup &lookup = filledLookup(files);
            return seconds([&] {
                for (const QString &locale : PackageTree::locales())
                    expect(lookup.find(NobodysKey, locale), false);
            });
        },
        [=] {
            HRSQLiteIndex &index = filledIndex(files);
            return seconds([&] {
                for (const QString &locale : PackageTree::locales())
                    expect(find(index, NobodysKey, locale), false);
            });
        },
        50 });
}

void addPackageFigures(RatioTable &table, int files)
{
    table.add({ "HRPackageIndex: warm start, nothing changed", files, 2,
        [=] { return seconds([&] { Baseline::listAndStat(settledTree(files)); }); },
        [=] {
            startPackageIndex(files); // takes in what other measurements have changed
            return startPackageIndex(files);
        } });
    table.add({ "HRPackageIndex: warm start after 1 % of the files changed", files, 1.3,
        [=] {
            const QString path = databases(files).path("changed.sqlite");
            return seconds([&] {
                Baseline::listAndStat(settledTree(files));
                Baseline::fillDatabase(settledTree(files), 0, ChangedStep, path);
            });
        },
        [=] {
            startPackageIndex(files);
            editSome(files);
            return startAndStorePackageIndex(files);
        },
        3 });
}

} // namespace

void addDatabaseFigures(RatioTable &table, int files)
{
    addSqliteFigures(table, files);
    addPackageFigures(table, files);
}

void dropDatabases()
{
    filledLookups.clear();
    filledIndexes.clear();
    allDatabases.clear();
}
