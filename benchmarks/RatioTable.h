// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <map>
#include <ostream>
#include <string>
#include <vector>

/// Takes one measurement: seconds or, for a figure of memory, bytes.
using Measure = std::function<double()>;

/// Which of repeated measurements counts.
enum class Statistic
{
    least, // since whatever else runs on the machine only ever adds
    interquartileMean // where what is measured varies by itself, as with a window system
};

/// What one line of the table compares. Each measurement is repeated, all of them in random order.
struct Figure
{
    std::string name;
    int files; // in the tree that it is measured on; 0 where there is none
    double bar; // the greatest ratio that is good enough
    Measure baseline;
    Measure ours;
    int repetitions = 10;
    Statistic statistic = Statistic::least;
};

/// Collects the measurements of figures while Google Benchmark runs, and prints the ratios.
class RatioTable : public benchmark::ConsoleReporter
{
public:
    /// Registers both sides of a figure.
    void add(const Figure &figure);

    /// Adds a line for how our side grows from the smallest to the largest tree, with cold caches.
    void addGrowth(const std::string &name, double bar);

    void ReportRuns(const std::vector<Run> &runs) override;

    void printTable(std::ostream &stream) const;
    void printJson(std::ostream &stream) const;

    /// One line for each ratio over its bar.
    void printMissed(std::ostream &stream) const;

private:
    struct Line
    {
        std::string name;
        int files;
        std::string baselineRun;
        std::string oursRun;
        double bar;
        bool isGrowth;
        Statistic statistic;
    };
    struct Result
    {
        double baseline;
        double ours;
        double ratio() const { return ours / baseline; }
    };

    Result result(const Line &line) const;
    bool isMeasured(const Line &line) const;

    std::vector<Line> m_lines;
    std::map<std::string, std::vector<double>> m_values; // by run
};
