// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QLocale>
#include <QString>

#include <functional>
#include <vector>

namespace Hintreels {
class HRIndex;
}

class PackageTree;

/// Has the program keep memory that it has once got. Else what one measurement gives back to the
/// system is paid for by whichever comes next, page by page: most of what made figures jump.
void keepMemory();

/// Fills the processor's caches with something else.
void emptyCaches();

/// How long something takes, in seconds.
template <typename Action>
double seconds(Action action)
{
    QElapsedTimer timer;
    timer.start();
    action();
    return double(timer.nsecsElapsed()) / 1e9;
}

/// How long something takes in a program that has done other work since, in seconds: as starts and
/// look-ups do for whoever waits for them. With caches as the last measurement has left them, a
/// thousand files would seem to cost nothing.
template <typename Action>
double coldSeconds(Action action)
{
    emptyCaches();
    return seconds(action);
}

/// The seconds that the processors spend on the program, all its threads, during an action: what
/// else runs on the machine does not count.
double processorSeconds(const std::function<void()> &action);

/// The mean of the middle half of some values: unlike their median it stays put where they fall
/// into two groups of about the same size, as the times of a window system do.
double interquartileMean(std::vector<double> values);

/// The value below which a share of the values lie.
double quantile(std::vector<double> values, double share);

/// Ends the figure that is being measured, by an exception: its row says so and counts as missed.
[[noreturn]] void cannotMeasure(const QString &why);

/// Ends the figure where an answer is wrong.
void expect(bool answer, bool expected);

/// Looks a key up and frees what is found.
bool find(Hintreels::HRIndex &index, const QString &key, const QLocale &locale);

/// Hands all control files of a tree to an index, as a host's start does.
void scan(Hintreels::HRIndex &index, const PackageTree &tree);

/// A key that no file has.
const QString NobodysKey = QStringLiteral("suite.nobody.has.this");
