// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

class RatioTable;

/// Adds the figures of the index in memory on a tree of this many control files.
void addIndexFigures(RatioTable &table, int files);

/// Adds the figures of the indexes in SQLite on a tree of this many control files.
void addDatabaseFigures(RatioTable &table, int files);

/// Closes and removes what the figures of databases have made; Qt's database drivers go with the
/// application.
void dropDatabases();

/// Adds the figure of texts with placeholders.
void addTextFigures(RatioTable &table);
