// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

class FigureRuns;

/// Adds what decoding clips, keeping their pictures and reading them costs.
void addCacheFigures(FigureRuns &runs);

/// Adds how long requests to threads at rest take, and one behind twenty others.
void addThreadFigures(FigureRuns &runs);

/// Adds what an item costs the GUI thread.
void addItemFigures(FigureRuns &runs);

/// Adds how evenly, and how exactly in time, clips are shown.
void addPlayingFigures(FigureRuns &runs);

inline void addVideoFigures(FigureRuns &runs)
{
    addCacheFigures(runs);
    addThreadFigures(runs);
    addItemFigures(runs);
    addPlayingFigures(runs);
}

/// Takes down what is still shown; windows go before the application.
void dropShownClips();

/// Removes the clips that were measured with.
void dropClips();
