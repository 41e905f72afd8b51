// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

class QFile;
class QString;

namespace Hintreels {

// Everything in src/index that asks the operating system past Qt.

/// Opens a file for reading, if it is a regular file, a link to one or a Qt resource.
///
/// Anything else is left alone: opening a named pipe would block the host.
bool openRegularFile(QFile &file, const QString &path);

} // namespace Hintreels
