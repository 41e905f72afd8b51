// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "FigureRuns.h"

#include "FigureTable.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace {

constexpr char BaselineCounter[] = "baseline";
constexpr char OursCounter[] = "ours";

/// Measures one pair at a call.
class Pairs
{
public:
    explicit Pairs(const Figure &figure)
        : m_figure(figure)
    {
    }

    void measure(benchmark::State &state)
    {
        if (m_figure.baseline && m_count++ == 0)
            pair();
        for (auto _ : state) {
            pair();
            state.SetIterationTime(m_figure.unit == Unit::seconds ? m_ours : 0);
        }
        state.counters[BaselineCounter] = m_baseline;
        state.counters[OursCounter] = m_ours;
    }

private:
    void pair()
    {
        m_oursFirst = !m_oursFirst;
        if (m_oursFirst)
            m_ours = m_figure.ours();
        if (m_figure.baseline)
            m_baseline = m_figure.baseline();
        if (!m_oursFirst)
            m_ours = m_figure.ours();
    }

    Figure m_figure;
    int m_count = 0;
    bool m_oursFirst = true;
    double m_baseline = 0;
    double m_ours = 0;
};

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

} // namespace

void FigureRuns::add(const Figure &figure)
{
    m_figures.push_back(figure);
    benchmark::RegisterBenchmark(figure.fullName().c_str(),
        [pairs = Pairs(figure)](benchmark::State &state) mutable { pairs.measure(state); })
        ->UseManualTime()
        ->Iterations(1)
        ->Repetitions(figure.repetitions)
        ->Unit(benchmark::kMillisecond);
}

void FigureRuns::run()
{
    benchmark::RunSpecifiedBenchmarks(this);
}

void FigureRuns::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        if (run.run_type != Run::RT_Iteration)
            continue;
        Values &values = m_values[run.run_name.function_name];
        values.baseline.push_back(run.counters.at(BaselineCounter));
        values.ours.push_back(run.counters.at(OursCounter));
    }
}

FigureTable FigureRuns::table() const
{
    FigureTable table;
    for (const Figure &figure : m_figures) {
        const auto found = m_values.find(figure.fullName());
        if (found == m_values.end())
            continue;
        table.add({ QString::fromStdString(figure.fullName()), figure.unit, bool(figure.baseline),
            value(found->second.baseline, figure.statistic),
            value(found->second.ours, figure.statistic), figure.bar });
    }
    return table;
}
