// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "interface/HRTypes.h"

#include <QString>

namespace Hintreels {

/// What kind of resource a link names: anything that strictly parses as a URL with a scheme is
/// one, of the rest what contains a slash is a path.
HRExternalResourceType externalResourceType(const QString &resource);

/// Whether content of strangers may have it opened: a web address, a mail address or a help topic.
bool mayStrangersOpen(const QString &resource);

} // namespace Hintreels
