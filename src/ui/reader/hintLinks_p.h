// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QVariantList>

namespace Hintreels {

/// Blocks of a hint with 100 links and pictures in texts at most.
///
/// Where there are more, each block of Markdown gets under "links" how many of them it may show,
/// and link blocks beyond the last one are replaced by an ellipsis.
QVariantList limitLinks(const QVariantList &blocks);

} // namespace Hintreels
