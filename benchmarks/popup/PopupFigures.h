// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

class FigureRuns;

/// Adds the figures of popups. They need a screen, and draw with Qt Quick's software renderer.
void addPopupFigures(FigureRuns &runs);

/// Closes the popups that were measured; no window may outlive the application.
void dropPopups();

/// Measures the first popup of a program, where this program was started for that.
/// @return whether it was
bool measureFirstPopup();
