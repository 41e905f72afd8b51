// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "Clips.h"
#include "Figures.h"

#include <QApplication>
#include <QTemporaryDir>

Figures cacheFigures(const Clip &clip);
Figures itemFigures(const Clip &clip);
Figures threadFigures();

/// Measures what playing a clip costs, each figure beside a baseline of the same run, and fails
/// where one misses its bar. It takes two minutes, and wants an idle machine.
int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QTemporaryDir directory;
    const QSize small(640, 360);
    const QSize large(1280, 720);
    Figures figures;
    for (bool isScreen : { true, false }) {
        for (const QSize &size : { small, large })
            figures += cacheFigures(makeClip(directory.path(), size, isScreen));
    }
    figures += threadFigures();
    figures += itemFigures(makeClip(directory.path(), small, true));
    return printTable(figures) ? 0 : 1;
}
