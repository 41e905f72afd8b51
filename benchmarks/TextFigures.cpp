// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "Figures.h"

#include "Baselines.h"
#include "FigureRuns.h"
#include "Measuring.h"
#include "manager/interpolation_p.h"

#include <QMap>
#include <QVariant>

using namespace Hintreels;

namespace {

constexpr int Placeholders = 20;
constexpr int Rounds = 1000; // of one measurement, since one round is too short for a clock

} // namespace

void addTextFigures(FigureRuns &runs)
{
    QString text;
    QStringList names;
    for (int i = 0; i < Placeholders; ++i) {
        text += "Hold the key while you drag to keep the ratio %(" + QString(i % 2 ? "key" : "name")
            + ")s ";
        names += i % 2 ? "key" : "name";
    }
    const QMap<QString, QVariant> values{ { "key", "Ctrl+K" }, { "name", "Pen" } };
    runs.add({ "20 placeholders in a text", 0, Bar::atMost(4),
        [=] {
            return seconds([&] {
                for (int i = 0; i < Rounds; ++i)
                    Baseline::copyAndLookUp(text, names, values);
            });
        },
        [=] {
            return seconds([&] {
                for (int i = 0; i < Rounds; ++i)
                    interpolated(text, values);
            });
        } });
}
