// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCommandLineParser>

namespace Hintreels {

constexpr int couldNotRun = 2; ///< exit status of a verb that could not do its work at all

/// Reads the application's arguments; `--help` and what the parser does not know end the command.
void readOptions(QCommandLineParser &parser);

/// Ends the command with a message on the standard error output.
[[noreturn]] void refuse(const QString &problem);

/// Directories that can be read, as absolute paths; anything else ends the command.
QStringList readableDirectories(QStringList paths);

} // namespace Hintreels
