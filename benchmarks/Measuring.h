// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QString>

namespace Hintreels {
class HRIndex;
}

class PackageTree;

/// While one lives, everything timed finds the processor's caches full of something else. Else what
/// a thousand files need would stay there from run to run, and what ten thousand need would not.
class ColdCaches
{
public:
    ColdCaches();
    ~ColdCaches();

    /// Fills the caches if one lives.
    static void fill();
};

/// How long something takes, in seconds.
template <typename Action>
double seconds(Action action)
{
    ColdCaches::fill();
    QElapsedTimer timer;
    timer.start();
    action();
    return double(timer.nsecsElapsed()) / 1e9;
}

/// Ends the program where an answer is wrong: nothing is measured then.
void expect(bool answer, bool expected);

/// Looks a key up and frees what is found.
bool find(Hintreels::HRIndex &index, const QString &key, const QString &locale);

/// Hands all control files of a tree to an index, as a host's start does.
void scan(Hintreels::HRIndex &index, const PackageTree &tree);

/// A key that no file has.
const QString NobodysKey = QStringLiteral("suite.nobody.has.this");
