// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

namespace Sketchpad {

enum class Theme
{
    Light,
    Dark
};

/// Gives the whole application Qt's Fusion style with light or dark colours.
void applyTheme(Theme theme);

} // namespace Sketchpad
