// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVector>

#include <functional>

/// A figure that was measured, beside what it is compared with.
struct Figure
{
    enum Kind
    {
        ratio, ///< ours divided by the baseline, at most the bar
        atMost, ///< ours itself, at most the bar
        atLeast ///< ours itself, at least the bar
    };

    QString name;
    Kind kind;
    QString unit; ///< of baseline and ours
    double baseline; ///< 0 where the bar is no ratio
    double ours;
    double bar;

    double value() const { return kind == ratio ? ours / baseline : ours; }
    bool isGood() const { return kind == atLeast ? value() >= bar : value() <= bar; }
};

using Figures = QVector<Figure>;

/// Seconds from the beginning to the end of @p work.
double secondsOf(const std::function<void()> &work);

/// Seconds that the processors spend on the program, all its threads, during @p work: what else
/// runs on the machine does not count.
double effortOf(const std::function<void()> &work);

/// The least of several runs of each, taken in turn: whatever else runs on the machine only adds.
struct Least
{
    double baseline;
    double ours;
};
Least leastOf(
    int runs, const std::function<double()> &baseline, const std::function<double()> &ours);

/// The value below which @p share of the values lie.
double quantile(QVector<double> values, double share);

/// Prints the figures as a table.
/// @return whether all are good
bool printTable(const Figures &figures);
