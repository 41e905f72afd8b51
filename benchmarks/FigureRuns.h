// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Figure.h"

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

class FigureTable;
struct Result;

/// Has Google Benchmark run figures, and collects what they measure.
///
/// Both sides of a figure are measured in pairs, and each time the other one begins: both find what
/// the other left in the caches, and what slows the machine down for a while slows both. The first
/// pair does not count, since it finds what the figure before has left.
class FigureRuns : public benchmark::ConsoleReporter
{
public:
    void add(const Figure &figure);

    const std::vector<Figure> &figures() const { return m_figures; }

    /// Runs those that the filter on the command line takes.
    void run();

    void ReportRuns(const std::vector<Run> &runs) override;

    /// Has a line for each figure that was run.
    FigureTable table() const;

private:
    struct Values
    {
        std::vector<double> baseline;
        std::vector<double> ours;
        std::string failure; // of the last measurement that failed
    };

    static Result resultOf(const Figure &figure, const Values &values);

    std::vector<Figure> m_figures;
    std::map<std::string, Values> m_values; // by full name
};
