// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace Hintreels {

/// A text as one line of a log: control characters, line separators and what turns the direction of
/// writing are escaped (`\n`, `\u202e`), so that a file's name cannot forge a message of its own.
QString printable(const QString &text);

} // namespace Hintreels
