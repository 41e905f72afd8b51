// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "report/FigureChart.h"

#include <algorithm>

namespace {

// Pixels. Names stand left of the plot, and the plot ends somewhat behind the bars.
constexpr int RowHeight = 18;
constexpr int Top = 34;
constexpr int Left = 500;
constexpr int BarWidth = 400;
constexpr int Right = 80;
constexpr double MostShare = 1.15;

double x(double share)
{
    return Left + BarWidth * std::clamp(share, 0.0, MostShare);
}

QString row(const FigureSpread &spread, int y)
{
    const Bar &bar = spread.middle.bar;
    const double ends[]
        = { bar.share(spread.least), bar.share(spread.middle.value), bar.share(spread.most) };
    return QStringLiteral("<text x='%1' y='%2' text-anchor='end'>%3</text>"
                          "<line x1='%4' x2='%5' y1='%6' y2='%6' class='spread'/>"
                          "<circle cx='%7' cy='%6' r='4' class='%8'/>\n")
        .arg(Left - 10)
        .arg(y + 4)
        .arg(spread.middle.figure.toHtmlEscaped())
        .arg(x(*std::min_element(ends, ends + 3)), 0, 'f', 1)
        .arg(x(*std::max_element(ends, ends + 3)), 0, 'f', 1)
        .arg(y)
        .arg(x(ends[1]), 0, 'f', 1)
        .arg(spread.isGood() ? "good" : "missed");
}

QString upright(double share, const char *name, int bottom)
{
    return QStringLiteral("<line x1='%1' x2='%1' y1='%2' y2='%3' class='%4'/>"
                          "<text x='%1' y='18' text-anchor='middle'>%5</text>\n")
        .arg(x(share), 0, 'f', 1)
        .arg(Top - 10)
        .arg(bottom)
        .arg(name)
        .arg(share == 1 ? QStringLiteral("bar") : QString::number(share));
}

} // namespace

QString chart(const FigureSpreads &spreads)
{
    const int bottom = Top + RowHeight * spreads.size();
    QString rows;
    for (int i = 0; i < spreads.size(); ++i)
        rows += row(spreads[i], Top + RowHeight * i + RowHeight / 2);
    return QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg' width='%1' height='%2' "
                          "font-family='sans-serif' font-size='12'>\n"
                          "<style>.spread{stroke:#6b7785;stroke-width:3}.good{fill:#1a6fb0}"
                          ".missed{fill:#c0392b}.bar{stroke:#c0392b;stroke-width:2}"
                          ".grid{stroke:#d5dade}</style>\n"
                          "<rect width='%1' height='%2' fill='white'/>\n")
               .arg(Left + BarWidth + Right)
               .arg(bottom + 10)
        + upright(0, "grid", bottom) + upright(0.5, "grid", bottom) + upright(1, "bar", bottom)
        + rows + "</svg>\n";
}
