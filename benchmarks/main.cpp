// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "Figures.h"
#include "RatioTable.h"
#include "popup/PopupFigures.h"

#include <QApplication>
#include <QQuickWindow>

#include <fstream>
#include <iostream>

namespace {

constexpr int Sizes[] = { 1000, 10000 };

constexpr double MostGrowth = 11; // from 1,000 to 10,000 files

constexpr const char *GrowingFigures[] = { "HRIndex: key that nobody has",
    "HRIndex: key in the middle file", "HRIndex: the very first look-up, key that nobody has",
    "HRIndex: a later look-up after one file was edited",
    "start with HRIndex: scan and root elements", "HRIndex: memory of the remembered readings",
    "HRSQLiteIndex: filling", "HRSQLiteIndex: key that nobody has, all locales",
    "HRPackageIndex: warm start, nothing changed",
    "HRPackageIndex: warm start after 1 % of the files changed" };

} // namespace

/// Measures all figures and prints their ratios; one argument names the file for them as JSON.
int main(int argc, char **argv)
{
    QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    const QApplication application(argc, argv);
    if (measureFirstPopup())
        return 0;
    benchmark::Initialize(&argc, argv);
    RatioTable table;
    for (const int files : Sizes) {
        addIndexFigures(table, files);
        addDatabaseFigures(table, files);
    }
    for (const char *figure : GrowingFigures)
        table.addGrowth(figure, MostGrowth);
    addTextFigures(table);
    addPopupFigures(table);
    benchmark::RunSpecifiedBenchmarks(&table);
    dropDatabases();
    dropPopups();
    table.printTable(std::cout);
    if (argc > 1) {
        std::ofstream json(argv[1]);
        table.printJson(json);
    }
    table.printMissed(std::cout);
}
