// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtTest>

/// Rows of names that would forge, wipe or turn a line of a log, and of what a message says
/// instead.
inline void addMisleadingNames()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("told");
    QTest::newRow("line break") << "a\nForged line"
                                << "a\\nForged line";
    QTest::newRow("escape sequence") << "a\x1b[2Jb"
                                     << "a\\u001b[2Jb";
    QTest::newRow("turned text") << QString("a\u202e4pm.b") << "a\\u202e4pm.b";
}
