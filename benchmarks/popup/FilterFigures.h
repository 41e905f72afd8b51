// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

class FigureRuns;

/// What the interface for widgets adds to each event.
void addFilterFigures(FigureRuns &runs);
