// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "Figures.h"

#include <QElapsedTimer>
#include <QTextStream>

#include <algorithm>
#include <ctime>

double secondsOf(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e9;
}

double effortOf(const std::function<void()> &work)
{
    const auto now = [] {
        timespec time;
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
    };
    const double begin = now();
    work();
    return now() - begin;
}

Least leastOf(
    int runs, const std::function<double()> &baseline, const std::function<double()> &ours)
{
    Least least{ baseline(), ours() };
    for (int i = 1; i < runs; ++i) {
        least.baseline = std::min(least.baseline, baseline());
        least.ours = std::min(least.ours, ours());
    }
    return least;
}

double quantile(QVector<double> values, double share)
{
    std::sort(values.begin(), values.end());
    return values[std::min(int(values.size() * share), values.size() - 1)];
}

bool printTable(const Figures &figures)
{
    QTextStream out(stdout);
    out << "| figure | baseline | ours | value | bar | |\n|---|---|---|---|---|---|\n";
    bool allGood = true;
    for (const Figure &figure : figures) {
        const QString baseline = figure.kind == Figure::ratio
            ? QString("%1 %2").arg(figure.baseline, 0, 'g', 4).arg(figure.unit)
            : QString();
        out << QString("| %1 | %2 | %3 %4 | %5 | %6 %7 | %8 |\n")
                   .arg(figure.name, baseline)
                   .arg(figure.ours, 0, 'g', 4)
                   .arg(figure.unit)
                   .arg(figure.value(), 0, 'g', 3)
                   .arg(figure.kind == Figure::atLeast ? ">=" : "<=")
                   .arg(figure.bar)
                   .arg(figure.isGood() ? "" : "missed");
        allGood = allGood && figure.isGood();
    }
    return allGood;
}
