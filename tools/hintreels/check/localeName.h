// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace Hintreels {

/// Whether the library reads a locale's name in content as the one that is written.
bool isKnownLocale(const QString &name);

/// The known name that somebody who wrote an unknown one has most likely meant; empty for none.
QString nearestLocale(const QString &name);

} // namespace Hintreels
