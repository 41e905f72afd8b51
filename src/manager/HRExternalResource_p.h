// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "interface/HRTypes.h"

#include <QString>

namespace Hintreels {

/// What kind of resource a link names: anything that strictly parses as a URL with a scheme is
/// one, of the rest what contains a slash is a path.
HRExternalResourceType externalResourceType(const QString &resource);

} // namespace Hintreels
