// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "IndexFigures.h"
#include "RatioTable.h"

#include <QCoreApplication>

#include <fstream>
#include <iostream>

namespace {

constexpr int Sizes[] = { 1000, 10000 };

} // namespace

/// Measures all figures and prints their ratios; one argument names the file for them as JSON.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    RatioTable table;
    for (const int files : Sizes) {
        addIndexFigures(table, files);
    }
    benchmark::RunSpecifiedBenchmarks(&table);
    table.printTable(std::cout);
    if (argc > 1) {
        std::ofstream json(argv[1]);
        table.printJson(json);
    }
    return table.printMissed(std::cout) ? 0 : 1;
}
