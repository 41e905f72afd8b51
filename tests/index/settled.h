// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "files/HRFileStamp_p.h"

#include <QFile>
#include <QString>
#include <QtTest>

/// Waits until a file is old enough for a reading of it to be kept; false where it never is.
inline bool becomesSettled(const QString &path)
{
    constexpr int hang = 60000;
    return QTest::qWaitFor(
        [&path] {
            const auto stamp = Hintreels::stampOfFile(QFile::encodeName(path));
            return stamp && Hintreels::isSettled(*stamp, Hintreels::nanosecondsNow());
        },
        hang);
}
