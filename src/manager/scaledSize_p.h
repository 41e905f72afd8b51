// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

namespace Hintreels {

/// A size times a scale, in single precision and truncated towards zero, within the limits of int.
/// A scale of 0 leaves the size as it is.
int scaledSize(int size, float scale);

} // namespace Hintreels
