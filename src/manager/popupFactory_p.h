// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

namespace Hintreels {

class HRManager;
class HRWidget;

/// Makes a popup without parent that holds a view, which fills it; nothing is shown.
/// @param manager may be null, which gives every setting its default
HRWidget *createPopup(HRManager *manager);

} // namespace Hintreels
