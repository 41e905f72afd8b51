// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

namespace Hintreels {

/// Whether Qt's translator can read a compiled translation file without leaving its bounds.
///
/// Qt trusts the offsets in the file: a single changed byte makes it read elsewhere, and a file
/// that names itself as a dependency is loaded until the stack ends. Everything that Qt follows is
/// checked here, and files with dependencies are refused. Linear in the size of the file.
///
/// The format is that of QTranslator in Qt 5 (qtranslator.cpp): a magic number, then sections of a
/// tag, a length and data, all numbers big-endian.
bool isSafeTranslation(const QByteArray &file);

} // namespace Hintreels
