// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

namespace Sketchpad {

class Drawing;

/// Fills an empty drawing with a small landscape, so that every tool has something to try at.
void drawWelcome(Drawing &drawing);

} // namespace Sketchpad
