// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

class QString;

namespace Hintreels {

/// How many directory levels a file lies below a package directory: 1 for a file directly in it.
///
/// Goes up from the file, following no links but comparing canonical paths, so that a link back to
/// the package on the way counts as the package. Nothing where the path does not begin with the
/// package's path, character by character, or where the way up meets no such directory.
std::optional<int> levelsBelowPackage(const QString &filePath, const QString &packagePath);

} // namespace Hintreels
