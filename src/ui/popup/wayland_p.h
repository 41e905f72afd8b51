// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

namespace Hintreels {

/// Whether the application's windows are those of a Wayland compositor.
///
/// There, a popup has its place only beside the window it belongs to, and only from the moment it
/// appears; no window knows where on the screen it stands; and a pointer that has left the
/// application's windows is nowhere.
bool isOnWayland();

} // namespace Hintreels
