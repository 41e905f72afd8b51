// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "FigureTable.h"

/// What several runs say of one figure.
struct FigureSpread
{
    Result middle; // the run whose value is the median
    double least;
    double most;

    bool isGood() const { return middle.bar.holds(least) && middle.bar.holds(most); }
};

using FigureSpreads = QVector<FigureSpread>;

/// The figures of the first run, in its order, each with what all runs say of it.
FigureSpreads spreadsOf(const QVector<FigureTable> &runs);

/// As a table in Markdown.
QString markdown(const FigureSpreads &spreads);
