// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "Figures.h"

#include "FigureRuns.h"

namespace {

constexpr double MostGrowth = 11; // for ten times the files

} // namespace

void addGrowthFigures(FigureRuns &runs)
{
    const std::vector<Figure> figures = runs.figures();
    for (const Figure &few : figures) {
        for (const Figure &many : figures) {
            if (few.name == many.name && few.files == fewFiles && many.files == manyFiles)
                runs.add({ few.name + ", growth", 0, Bar::atMost(MostGrowth), few.ours, many.ours,
                    many.repetitions, many.unit });
        }
    }
}
