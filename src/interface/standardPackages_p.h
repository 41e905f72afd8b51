// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace Hintreels {

/// The file that the library's code was loaded from: the library itself, or the program that has
/// linked it in.
QString libraryFile();

/// The data path of the packages that ship with a library of this path, in the tree that it was
/// installed into, moved to or built in; null where there is none.
///
/// That is `share/hintreels/packages` beside the directory of the library, or beside the one around
/// it where that is called `lib` (`lib/x86_64-linux-gnu`).
QString packagesOf(const QString &library);

} // namespace Hintreels
