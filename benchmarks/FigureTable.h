// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Figure.h"

#include <QByteArray>
#include <QString>
#include <QVector>

/// What was measured for a figure.
struct Result
{
    QString figure;
    Unit unit;
    bool hasBaseline;
    double baseline; // the median of the measurements, as are ours
    double ours;
    double value; // of the pairs' ratios, or of ours where there is no baseline
    Bar bar;
    QString failure = {}; // why it could not be measured; the numbers are none then

    bool isGood() const { return failure.isEmpty() && bar.holds(value); }
};

/// The results of one run, with their verdict.
class FigureTable
{
public:
    void add(const Result &result) { m_results.append(result); }

    const QVector<Result> &results() const { return m_results; }

    /// As a table in Markdown.
    QString markdown() const;

    /// One line for each result that misses its bar, and one where there is no result at all.
    QStringList faults() const;

    QByteArray json() const;

    /// Reads what json() wrote; nothing where that is not understood.
    static FigureTable fromJson(const QByteArray &json);

private:
    QVector<Result> m_results;
};

/// A measured value with its unit, four digits long.
QString shown(double value, Unit unit);

/// What is good enough, as a reader would write it.
QString shown(const Bar &bar);
