// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "popup/PopupFigures.h"

#include "FigureRuns.h"
#include "Measuring.h"
#include "popup/Popups.h"

#include <QCoreApplication>
#include <QProcess>

#include <iostream>
#include <memory>

namespace {

constexpr int Repetitions = 40;
constexpr int Starts = 15;

const QString FirstPopupOption = QStringLiteral("--first-popup");

std::unique_ptr<Popups> &popups()
{
    static std::unique_ptr<Popups> popups;
    return popups;
}

Measure shown(double (Popups::*popup)(Popups::Before), Popups::Before before)
{
    return [=] {
        if (!popups())
            popups() = std::make_unique<Popups>();
        return (*popups().*popup)(before);
    };
}

/// Starts this program anew, for one popup alone.
Measure started(const QString &popup)
{
    return [=] {
        QProcess program;
        program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        program.start(QCoreApplication::applicationFilePath(), { FirstPopupOption, popup });
        program.waitForFinished();
        bool isNumber = false;
        const double seconds = program.readAll().trimmed().toDouble(&isNumber);
        if (!isNumber)
            cannotMeasure("the first popup did not come");
        return seconds;
    };
}

} // namespace

void addPopupFigures(FigureRuns &runs)
{
    const auto add = [&](const char *name, double bar, const Measure &baseline, const Measure &ours,
                         int repetitions) {
        runs.add({ name, 0, Bar::atMost(bar), baseline, ours, repetitions });
    };
    using Before = Popups::Before;
    const Measure appears = shown(&Popups::hover, Before::nothing);
    const Measure follows = shown(&Popups::hover, Before::otherContent);
    add("hover to painted popup, against a bare QQuickView", 1.3,
        shown(&Popups::bareView, Before::nothing), appears, Repetitions);
    add("hover to painted popup, against QToolTip", 2.0, shown(&Popups::toolTip, Before::nothing),
        appears, Repetitions);
    add("visible popup to its next content, against a bare QQuickView", 1.3,
        shown(&Popups::bareView, Before::otherContent), follows, Repetitions);
    add("visible popup to its next content, against QToolTip", 2.0,
        shown(&Popups::toolTip, Before::otherContent), follows, Repetitions);
    add("first popup after start, against a new bare QQuickView", 1.3, started("baseline"),
        started("ours"), Starts);
}

void dropPopups()
{
    popups().reset();
}

bool measureFirstPopup()
{
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) != FirstPopupOption)
        return false;
    std::cout << (arguments.value(2) == "ours" ? firstHover() : firstBareView()) << std::endl;
    return true;
}
