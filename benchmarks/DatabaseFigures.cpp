// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "Figures.h"

#include "Baselines.h"
#include "FigureRuns.h"
#include "Measuring.h"
#include "PackageTree.h"
#include "context/HRContext.h"
#include "index/HRPackageIndex.h"
#include "index/HRSQLiteIndex.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <iostream>
#include <map>
#include <memory>
#include <vector>

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
    return coldSeconds([&] {
        expect(index.open(), true);
        scan(index, settledTree(files));
    });
}

double startAndStorePackageIndex(int files)
{
    HRPackageIndex index(&databases(files).context, {});
    return coldSeconds([&] {
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

/// Made before the clock runs: Qt takes longer to make one than SQLite to look a key up.
std::vector<QLocale> allLocales()
{
    std::vector<QLocale> locales;
    for (const QString &name : PackageTree::locales())
        locales.emplace_back(name);
    return locales;
}

double startSqliteIndex(HRContext &context, int files)
{
    HRSQLiteIndex index(&context, {});
    const double taken = coldSeconds([&] { fill(index, files); });
    index.close();
    return taken;
}

void addSqliteFigures(FigureRuns &runs, int files)
{
    runs.add({ "HRSQLiteIndex: filling", files, Bar::atMost(1.3),
        [=] {
            const QString path = databases(files).path("filling.sqlite");
            return coldSeconds([&] { Baseline::fillDatabase(settledTree(files), 0, 1, path); });
        },
        [=] { return startSqliteIndex(databases(files).context, files); },
        files == manyFiles ? 5 : 10 });
    runs.add({ "HRSQLiteIndex: key that nobody has, all locales", files, Bar::atMost(1.5),
        [=] {
            Baseline::Lookup &lookup = filledLookup(files);
            const QStringList locales = PackageTree::locales();
            return coldSeconds([&] {
                for (const QString &locale : locales)
                    expect(lookup.find(NobodysKey, locale), false);
            });
        },
        [=] {
            HRSQLiteIndex &index = filledIndex(files);
            const std::vector<QLocale> locales = allLocales();
            return coldSeconds([&] {
                for (const QLocale &locale : locales)
                    expect(find(index, NobodysKey, locale), false);
            });
        },
        50 });
}

const QString HoldLockOption = QStringLiteral("--hold-lock");

/// Another program, this one started anew, that holds a database as one that writes for long.
class OtherProgram
{
public:
    explicit OtherProgram(const QString &path)
    {
        m_process.start(QCoreApplication::applicationFilePath(), { HoldLockOption, path });
        expect(m_process.waitForReadyRead(), true);
    }

    ~OtherProgram()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
};

void holdLock(const QString &path)
{
    QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE");
    database.setDatabaseName(path);
    if (!database.open() || !QSqlQuery(database).exec("BEGIN EXCLUSIVE"))
        return;
    std::cout << "locked" << std::endl;
    std::cin.get(); // until the other closes its end
}

void addPackageFigures(FigureRuns &runs, int files)
{
    runs.add({ "HRPackageIndex: warm start, nothing changed", files, Bar::atMost(2),
        [=] { return coldSeconds([&] { Baseline::listAndStat(settledTree(files)); }); },
        [=] {
            startPackageIndex(files); // takes in what other measurements have changed
            return startPackageIndex(files);
        } });
    runs.add({ "HRPackageIndex: warm start after 1 % of the files changed", files, Bar::atMost(1.3),
        [=] {
            const QString path = databases(files).path("changed.sqlite");
            return coldSeconds([&] {
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

double startLocked(int files)
{
    Databases &all = databases(files);
    HRSQLiteIndex index(&all.context, {});
    const double opening = coldSeconds([&] { expect(index.open(), true); });
    double scanning = 0;
    {
        const OtherProgram other(all.path("Zentora_Bench_HRI.sqlite"));
        scanning = coldSeconds([&] { scan(index, settledTree(files)); });
    }
    index.close();
    return opening + scanning;
}

} // namespace

void addDatabaseFigures(FigureRuns &runs, int files)
{
    addSqliteFigures(runs, files);
    addPackageFigures(runs, files);
}

void addLockFigures(FigureRuns &runs)
{
    constexpr double Waiting = 1; // s, that may go by until the index knows that nothing moves
    runs.add({ "HRSQLiteIndex: start while another holds the lock, against two and a second", 0,
        Bar::atMost(1),
        [] { return 2 * startSqliteIndex(databases(fewFiles).context, fewFiles) + Waiting; },
        [] { return startLocked(fewFiles); }, 3 });
}

bool holdLockOfAnother()
{
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) != HoldLockOption)
        return false;
    holdLock(arguments.value(2));
    return true;
}

void dropDatabases()
{
    filledLookups.clear();
    filledIndexes.clear();
    allDatabases.clear();
}
