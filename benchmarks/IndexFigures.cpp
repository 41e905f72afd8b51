// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "Figures.h"

#include "Baselines.h"
#include "FigureRuns.h"
#include "Measuring.h"
#include "PackageTree.h"
#include "index/HRIndex.h"

#include <QLocale>

#include <malloc.h>

#include <map>
#include <memory>

using namespace Hintreels;

namespace {

const QLocale AnyLocale(QStringLiteral("en_US"));

/// An index that has answered before.
HRIndex &warmIndex(int files)
{
    static std::map<int, std::unique_ptr<HRIndex>> indexes;
    std::unique_ptr<HRIndex> &index = indexes[files];
    if (!index) {
        index = std::make_unique<HRIndex>(nullptr, QStringList());
        scan(*index, settledTree(files));
        expect(find(*index, NobodysKey, AnyLocale), false);
    }
    return *index;
}

/// The file that lies in the middle of the order in which files are tried.
int middleFile(int files)
{
    return files / 2;
}

QString middlePath(int files)
{
    return settledTree(files).files()[size_t(middleFile(files))].path;
}

/// Looks the key of the middle file up.
double findMiddle(int files)
{
    const int middle = middleFile(files);
    const QString key = PackageTree::keyOf(middle);
    const QLocale locale(PackageTree::localeOf(middle));
    HRIndex &index = warmIndex(files);
    return coldSeconds([&] { expect(find(index, key, locale), true); });
}

void addWarmLookUps(FigureRuns &runs, int files)
{
    runs.add({ "HRIndex: key that nobody has", files, Bar::atMost(1.5),
        [=] { return coldSeconds([&] { Baseline::statAll(settledTree(files)); }); },
        [=] {
            HRIndex &index = warmIndex(files);
            return coldSeconds([&] { expect(find(index, NobodysKey, AnyLocale), false); });
        } });
    runs.add({ "HRIndex: key in the middle file", files, Bar::atMost(1.3),
        [=] {
            return coldSeconds([&] {
                Baseline::statAll(settledTree(files));
                Baseline::parse(middlePath(files));
            });
        },
        [=] { return findMiddle(files); } });
}

void addLookUpsThatRead(FigureRuns &runs, int files)
{
    runs.add({ "HRIndex: the very first look-up, key that nobody has", files, Bar::atMost(3),
        [=] {
            return coldSeconds(
                [&] { Baseline::searchAll(settledTree(files), NobodysKey.toUtf8()); });
        },
        [=] {
            HRIndex index(nullptr, {});
            scan(index, settledTree(files));
            return coldSeconds([&] { expect(find(index, NobodysKey, AnyLocale), false); });
        },
        5 });
    runs.add({ "HRIndex: a later look-up after one file was edited", files, Bar::atMost(1.3),
        [=] {
            return coldSeconds([&] {
                Baseline::statAll(settledTree(files));
                Baseline::parse(settledTree(files).files().back().path);
                Baseline::parse(middlePath(files));
            });
        },
        [=] {
            warmIndex(files);
            settledTree(files).edit(files - 1);
            const double taken = findMiddle(files);
            waitUntilSettled();
            findMiddle(files);
            return taken;
        },
        3 });
}

void addStartAndMemory(FigureRuns &runs, int files)
{
    runs.add({ "start with HRIndex: scan and root elements", files, Bar::atMost(2),
        [=] { return coldSeconds([&] { Baseline::listAndReadHeads(settledTree(files)); }); },
        [=] {
            HRIndex index(nullptr, {});
            return coldSeconds([&] { scan(index, settledTree(files)); });
        } });
    runs.add({ "HRIndex: memory of the remembered readings", files, Bar::atMost(4),
        [=] { return double(settledTree(files).keyBytes()); },
        [=] {
            HRIndex index(nullptr, {});
            scan(index, settledTree(files));
            const auto before = ::mallinfo2().uordblks;
            find(index, NobodysKey, AnyLocale);
            return double(::mallinfo2().uordblks - before);
        },
        1, Unit::bytes });
}

} // namespace

void addIndexFigures(FigureRuns &runs, int files)
{
    addWarmLookUps(runs, files);
    addLookUpsThatRead(runs, files);
    addStartAndMemory(runs, files);
}
