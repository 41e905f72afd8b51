// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "Measuring.h"

#include "PackageTree.h"
#include "content/HRXmlElement.h"
#include "context/HRContext.h"
#include "index/HRIndex.h"
#include "manager/HRPackageScanner_p.h"

#include <malloc.h>

#include <algorithm>
#include <cstddef>
#include <ctime>
#include <limits>
#include <numeric>
#include <stdexcept>

using namespace Hintreels;

void keepMemory()
{
    ::mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    ::mallopt(M_MMAP_MAX, 0);
    ::mallopt(M_ARENA_MAX, 1); // those of threads give back what is free of them all the same
}

void emptyCaches()
{
    constexpr size_t Size = 96 << 20; // more than the caches of desktop processors hold
    constexpr size_t Line = 64;
    constexpr int Passes = 4; // caches that adapt keep some of what was used often through one
    static std::vector<char> memory(Size);
    for (int pass = 0; pass < Passes; ++pass) {
        for (size_t i = 0; i < memory.size(); i += Line)
            ++memory[i];
    }
}

double processorSeconds(const std::function<void()> &action)
{
    const auto now = [] {
        timespec time;
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
    };
    const double begin = now();
    action();
    return now() - begin;
}

double interquartileMean(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const auto quarter = std::ptrdiff_t((values.size() + 1) / 4);
    const double sum = std::accumulate(values.begin() + quarter, values.end() - quarter, 0.0);
    return sum / double(std::ptrdiff_t(values.size()) - 2 * quarter);
}

double quantile(std::vector<double> values, double share)
{
    std::sort(values.begin(), values.end());
    return values[std::min(size_t(double(values.size()) * share), values.size() - 1)];
}

void cannotMeasure(const QString &why)
{
    throw std::runtime_error(why.toStdString());
}

void expect(bool answer, bool expected)
{
    if (answer != expected)
        cannotMeasure("the index answers wrongly");
}

bool find(HRIndex &index, const QString &key, const QLocale &locale)
{
    QString directory;
    int depth = 0;
    HRXmlElement *root = nullptr;
    if (!index.retrieve(key, locale, directory, depth, root))
        return false;
    delete root;
    return true;
}

void scan(HRIndex &index, const PackageTree &tree)
{
    static const HRContext context;
    HRPackageScanner(context, index, [](const QString &) {}).scanDataPaths({ tree.path() });
}
