// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

namespace Hintreels {

/// Gives popups and their views the faces that assistive technology meets, in place of Qt's.
///
/// A popup is a tool tip, and a group within a window once it is reserved. Its one child is its
/// view, whose children are the items on show that have something to say. Qt takes a view in a
/// widget for a window beside that, so that the way up from an item misses the popup. Calling it
/// again does nothing.
void installPopupAccessible();

} // namespace Hintreels
