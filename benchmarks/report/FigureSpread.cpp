// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "report/FigureSpread.h"

#include <algorithm>

namespace {

FigureSpread spreadOf(const QString &figure, const QVector<FigureTable> &runs)
{
    QVector<Result> results;
    for (const FigureTable &run : runs) {
        for (const Result &result : run.results()) {
            if (result.figure == figure)
                results.append(result);
        }
    }
    std::sort(results.begin(), results.end(),
        [](const Result &a, const Result &b) { return a.value < b.value; });
    return { results[results.size() / 2], results.first().value, results.last().value };
}

QString number(double value)
{
    return QString::number(value, 'g', 4);
}

} // namespace

FigureSpreads spreadsOf(const QVector<FigureTable> &runs)
{
    FigureSpreads spreads;
    if (runs.isEmpty())
        return spreads;
    for (const Result &result : runs.first().results())
        spreads.append(spreadOf(result.figure, runs));
    return spreads;
}

QString markdown(const FigureSpreads &spreads)
{
    QString table = "| figure | baseline | ours | value | least | most | bar | |\n"
                    "|---|---|---|---|---|---|---|---|\n";
    for (const FigureSpread &spread : spreads) {
        const Result &middle = spread.middle;
        table += QStringLiteral("| %1 | %2 | %3 | %4 | %5 | %6 | %7 | %8 |\n")
                     .arg(middle.figure,
                         middle.hasBaseline ? shown(middle.baseline, middle.unit) : QString(),
                         shown(middle.ours, middle.unit), number(middle.value),
                         number(spread.least), number(spread.most), shown(middle.bar),
                         spread.isGood() ? QString() : QStringLiteral("missed"));
    }
    return table;
}
