// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "FigureRuns.h"

#include "FigureTable.h"
#include "Measuring.h"

#include <exception>

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
        try {
            if (m_figure.baseline && m_count++ == 0)
                pair();
            for (auto _ : state) {
                pair();
                state.SetIterationTime(m_figure.unit == Unit::seconds ? m_ours : 0);
            }
        } catch (const std::exception &failure) {
            state.SkipWithError(failure.what());
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

/// Of a pair, what slows the machine down for a while slows both: their ratio says more than the
/// best of each side, which may come from different moments.
std::vector<double> ratios(const std::vector<double> &baseline, const std::vector<double> &ours)
{
    std::vector<double> ratios;
    for (size_t i = 0; i < ours.size(); ++i)
        ratios.push_back(ours[i] / baseline[i]);
    return ratios;
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
        if (run.error_occurred) {
            values.failure = run.error_message;
            continue;
        }
        values.baseline.push_back(run.counters.at(BaselineCounter));
        values.ours.push_back(run.counters.at(OursCounter));
    }
}

FigureTable FigureRuns::table() const
{
    FigureTable table;
    for (const Figure &figure : m_figures) {
        const auto found = m_values.find(figure.fullName());
        if (found != m_values.end())
            table.add(resultOf(figure, found->second));
    }
    return table;
}

Result FigureRuns::resultOf(const Figure &figure, const Values &values)
{
    Result result{ QString::fromStdString(figure.fullName()), figure.unit, bool(figure.baseline), 0,
        0, 0, figure.bar, QString::fromStdString(values.failure) };
    if (!values.failure.empty())
        return result;
    result.baseline = quantile(values.baseline, 0.5);
    result.ours = quantile(values.ours, 0.5);
    result.value
        = interquartileMean(figure.baseline ? ratios(values.baseline, values.ours) : values.ours);
    return result;
}
