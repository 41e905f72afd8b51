// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <limits>
#include <string>

/// Takes one measurement, in the unit of its figure. Throws where that is not to be had, for which
/// there is cannotMeasure().
using Measure = std::function<double()>;

enum class Unit
{
    seconds,
    bytes,
    none
};

/// The values that are good enough, both ends included; not-a-number never is.
struct Bar
{
    double least;
    double most;

    static Bar atMost(double most) { return { -std::numeric_limits<double>::infinity(), most }; }
    static Bar atLeast(double least) { return { least, std::numeric_limits<double>::infinity() }; }

    bool holds(double value) const { return value >= least && value <= most; }

    /// How much of the room a value takes: 1 at the bar, more where it is missed.
    double share(double value) const;
};

/// What one line of the table says.
struct Figure
{
    std::string name;
    int files = 0; // in the tree that it is measured on; 0 where there is none
    Bar bar; // of the ratio of ours to the baseline; of ours itself where there is no baseline
    Measure baseline;
    Measure ours;
    int repetitions = 10;
    Unit unit = Unit::seconds;

    /// As it is called on the command line and in the table.
    std::string fullName() const { return files == 0 ? name : name + "/" + std::to_string(files); }
};
