// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace Hintreels {

/// The path of a file of the standard UI that is part of the library, as a Qt resource.
/// @param path below the standard package
QString standardUiResource(const QString &path);

} // namespace Hintreels
