// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "context/HRContext.h"

namespace Hintreels {

/// A host's settings, with what HRWidgetsInterface turns on where the host has not set it.
HRContext widgetsSettings(const HRContext &host);

} // namespace Hintreels
