// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

namespace Hintreels {

/// Gives what is free in the heap back to the system, that of threads that have ended included.
///
/// Takes some milliseconds; does nothing without glibc.
void trimHeap();

} // namespace Hintreels
