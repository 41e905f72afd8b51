// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

namespace Hintreels {

class HRWidget;

/// Moves a popup into a window of the host, where it was on the screen, and shows that.
///
/// The window becomes the popup's parent; without a layout it gets one without margins.
void moveIntoWindow(HRWidget &popup, QWidget *window);

/// Makes a popup a window of its own, which is deleted when it is closed.
void moveIntoOwnWindow(HRWidget &popup);

} // namespace Hintreels
