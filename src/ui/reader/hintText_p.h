// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVariantMap>

namespace Hintreels {

/// All that a hint says, as plain text for the clipboard: title and shortcut in a line, the
/// summary, and the text of each block, with an empty line between them.
///
/// Markdown loses its marks. A picture or clip is what its "alt" says, and a link ends in its
/// target.
/// @param hint as HRContentReader::read() returns it
QString hintText(const QVariantMap &hint);

} // namespace Hintreels
