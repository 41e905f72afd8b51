// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

class FigureRuns;

// The trees that the indexes are measured on have this many control files.
constexpr int fewFiles = 1000;
constexpr int manyFiles = 10000;

/// Adds the figures of the index in memory on a tree of this many control files.
void addIndexFigures(FigureRuns &runs, int files);

/// Adds the figures of the indexes in SQLite on a tree of this many control files.
void addDatabaseFigures(FigureRuns &runs, int files);

/// Adds a start of the index in SQLite while another program is at work on its database.
void addLockFigures(FigureRuns &runs);

/// Holds a lock instead of measuring, if the command line of the program says so.
/// @return true if it does
bool holdLockOfAnother();

/// Adds how much longer each of them takes with many files than with few.
void addGrowthFigures(FigureRuns &runs);

/// Closes and removes what the figures of databases have made; Qt's database drivers go with the
/// application.
void dropDatabases();

/// Adds the figure of texts with placeholders.
void addTextFigures(FigureRuns &runs);
