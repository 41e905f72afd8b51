// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSize>
#include <QString>

#include <functional>

namespace Hintreels {

/// The size of a clip's pictures as they are to be seen, in pixels; empty for a file that cannot be
/// opened as a clip.
///
/// Reads no further than the header, or the first pictures where that gives no size, and for a
/// tenth of a second at most. Any thread.
/// @param shouldStop asked now and then on the calling thread; true ends the look with an empty
/// size
QSize clipSize(const QString &path, const std::function<bool()> &shouldStop = {});

} // namespace Hintreels
