// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

namespace Sketchpad {

enum class Theme
{
    Light,
    Dark,
    Contrast, ///< black on white, as desktops have it for high contrast
    DarkContrast ///< white on black
};

/// Gives the whole application Qt's Fusion style with light or dark colours.
void applyTheme(Theme theme);

} // namespace Sketchpad
