// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "files/HRFileStamp_p.h"

#include <optional>

#include <fcntl.h>

struct stat;

namespace Hintreels {

// What the classes of this room ask the operating system past Qt.

/// Opens a file of whatever kind; a named pipe does not block. The descriptor is the caller's, -1
/// after a failure.
/// @param path, directory as for openat()
int openForReading(const char *path, int directory = AT_FDCWD);

HRFileStamp stampOf(const struct stat &status);

/// The stamp of a regular file; nothing for anything else.
std::optional<HRFileStamp> stampOfDescriptor(int descriptor);
std::optional<HRFileStamp> stampAt(const char *path);

} // namespace Hintreels
