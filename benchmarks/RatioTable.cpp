// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "RatioTable.h"

#include "Measuring.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <numeric>

namespace {

std::string runName(const std::string &figure, int files, const char *side)
{
    return figure + "/" + std::to_string(files) + "/" + side;
}

void registerRun(const std::string &name, const Measure &measure, int repetitions)
{
    benchmark::RegisterBenchmark(name.c_str(),
        [measure](benchmark::State &state) {
            for (auto _ : state)
                state.SetIterationTime(measure());
        })
        ->UseManualTime()
        ->Iterations(1)
        ->Repetitions(repetitions)
        ->Unit(benchmark::kMillisecond);
}

/// Unlike the median it stays put where values fall into two groups of about the same size.
double interquartileMean(const std::vector<double> &sorted)
{
    const auto quarter = std::ptrdiff_t(sorted.size() / 4);
    const double sum = std::accumulate(sorted.begin() + quarter, sorted.end() - quarter, 0.0);
    return sum / double(std::ptrdiff_t(sorted.size()) - 2 * quarter);
}

double value(std::vector<double> values, Statistic statistic)
{
    std::sort(values.begin(), values.end());
    return statistic == Statistic::least ? values.front() : interquartileMean(values);
}

std::string formatted(const char *format, double value)
{
    char text[64];
    std::snprintf(text, sizeof text, format, value);
    return text;
}

/// Figures are seconds, well below a thousand of them, or bytes, well above.
std::string shown(double value)
{
    return value < 1000 ? formatted("%.4g ms", value * 1000) : formatted("%.0f bytes", value);
}

} // namespace

void RatioTable::add(const Figure &figure)
{
    const std::string baseline = runName(figure.name, figure.files, "baseline");
    const std::string ours = runName(figure.name, figure.files, "ours");
    const auto oursWithColdCaches = [measure = figure.ours] {
        const ColdCaches cold;
        return measure();
    };
    registerRun(baseline, figure.baseline, figure.repetitions);
    registerRun(ours, figure.ours, figure.repetitions);
    if (figure.files > 0)
        registerRun(
            runName(figure.name, figure.files, "cold"), oursWithColdCaches, figure.repetitions);
    m_lines.push_back(
        { figure.name, figure.files, baseline, ours, figure.bar, false, figure.statistic });
}

void RatioTable::addGrowth(const std::string &name, double bar)
{
    int least = 0;
    int most = 0;
    for (const Line &line : m_lines) {
        if (line.name != name)
            continue;
        least = least == 0 ? line.files : std::min(least, line.files);
        most = std::max(most, line.files);
    }
    m_lines.push_back({ name + ", growth", most, runName(name, least, "cold"),
        runName(name, most, "cold"), bar, true, Statistic::least });
}

void RatioTable::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        if (run.run_type != Run::RT_Iteration)
            continue;
        const std::string name = run.run_name.function_name;
        m_values[name].push_back(run.real_accumulated_time / double(run.iterations));
    }
}

void RatioTable::printTable(std::ostream &stream) const
{
    stream
        << "| figure | files | baseline | ours | ratio | bar | |\n|---|---|---|---|---|---|---|\n";
    for (const Line &line : m_lines) {
        if (!isMeasured(line))
            continue;
        const Result measured = result(line);
        stream << "| " << line.name << " | " << line.files << " | " << shown(measured.baseline)
               << " | " << shown(measured.ours) << " | " << formatted("%.2f", measured.ratio())
               << " | " << formatted("%.1f", line.bar) << " | "
               << (measured.ratio() <= line.bar ? "" : "over") << " |\n";
    }
}

void RatioTable::printJson(std::ostream &stream) const
{
    const char *separator = "[\n";
    for (const Line &line : m_lines) {
        if (!isMeasured(line))
            continue;
        const Result measured = result(line);
        stream << separator << "  {\"figure\": \"" << line.name << "\", \"files\": " << line.files
               << ", \"baseline\": " << formatted("%.9g", measured.baseline)
               << ", \"ours\": " << formatted("%.9g", measured.ours)
               << ", \"ratio\": " << formatted("%.4f", measured.ratio())
               << ", \"bar\": " << formatted("%.4f", line.bar) << "}";
        separator = ",\n";
    }
    stream << "\n]\n";
}

void RatioTable::printMissed(std::ostream &stream) const
{
    for (const Line &line : m_lines) {
        if (!isMeasured(line) || result(line).ratio() <= line.bar)
            continue;
        stream << "over its bar: " << line.name << " (" << line.files
               << " files): " << formatted("%.2f", result(line).ratio()) << " where "
               << formatted("%.1f", line.bar) << " is the most\n";
    }
}

RatioTable::Result RatioTable::result(const Line &line) const
{
    return { value(m_values.at(line.baselineRun), line.statistic),
        value(m_values.at(line.oursRun), line.statistic) };
}

bool RatioTable::isMeasured(const Line &line) const
{
    return m_values.count(line.baselineRun) > 0 && m_values.count(line.oursRun) > 0;
}
