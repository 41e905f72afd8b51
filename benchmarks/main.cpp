// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "FigureRuns.h"
#include "FigureTable.h"
#include "Figures.h"
#include "Measuring.h"
#include "popup/FilterFigures.h"
#include "popup/PopupFigures.h"
#include "video/VideoFigures.h"

#include <QApplication>
#include <QFile>
#include <QQuickWindow>

#include <iostream>

namespace {

void addFigures(FigureRuns &runs)
{
    for (const int files : { fewFiles, manyFiles }) {
        addIndexFigures(runs, files);
        addDatabaseFigures(runs, files);
    }
    addGrowthFigures(runs);
    addLockFigures(runs);
    addTextFigures(runs);
    addVideoFigures(runs);
    addPopupFigures(runs);
    addFilterFigures(runs);
}

void dropWhatWasMeasured()
{
    dropDatabases();
    dropShownClips();
    dropClips();
    dropPopups();
}

bool write(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QFile::WriteOnly) && file.write(text) == text.size();
}

} // namespace

/// Measures all figures, or those of a filter, and prints them; an argument names the file for them
/// as JSON. Ends with 1 where one misses its bar, or none was measured.
int main(int argc, char **argv)
{
    keepMemory();
    QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    const QApplication application(argc, argv);
    if (measureFirstPopup() || holdLockOfAnother())
        return 0;
    benchmark::Initialize(&argc, argv);
    FigureRuns runs;
    addFigures(runs);
    runs.run();
    dropWhatWasMeasured();
    const FigureTable table = runs.table();
    QStringList faults = table.faults();
    if (argc > 1 && !write(argv[1], table.json()))
        faults += QStringLiteral("cannot write %1").arg(argv[1]);
    std::cout << table.markdown().toStdString();
    for (const QString &fault : faults)
        std::cout << fault.toStdString() << '\n';
    return faults.isEmpty() ? 0 : 1;
}
