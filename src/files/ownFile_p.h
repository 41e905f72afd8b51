// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

class QString;

namespace Hintreels {

/// Makes sure that a database's file is this user's own, where others can write to its directory.
///
/// Makes a missing file, readable and writable by the user alone. An existing one must be regular,
/// no link, without a second name, and neither of another user nor writable by others; the same
/// goes for the files that SQLite keeps beside it.
bool takeOwnFile(const QString &path);

} // namespace Hintreels
