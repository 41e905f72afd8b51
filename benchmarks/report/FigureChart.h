// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "report/FigureSpread.h"

/// Draws how much of its bar each figure takes: a dot for the median, a line from the least to the
/// most of the runs, and one upright line where the bars are.
/// @return an SVG document
QString chart(const FigureSpreads &spreads);
