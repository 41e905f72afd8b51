// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>
#include <QVector>

namespace Hintreels {

/// The strokes of a shortcut or gesture, each a list of keys: "Ctrl+K, Ctrl+C" has two strokes of
/// two keys, "Ctrl++" one stroke with the keys "Ctrl" and "+".
///
/// At most 24 strokes of 8 keys, and 40 UTF-16 units on a key; what is cut ends in an ellipsis,
/// which counts as a stroke or key itself.
QVector<QStringList> keyCapsOf(const QString &shortcut);

} // namespace Hintreels
