// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSize>
#include <QString>

namespace Hintreels {

/// The size of a clip's pictures in pixels; empty for a file that cannot be opened as a clip.
///
/// Reads no further than the header, or the first pictures where that gives no size, and for a
/// tenth of a second at most, so that a popup may ask while it is being laid out.
QSize clipSize(const QString &path);

} // namespace Hintreels
