// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "context/setting_p.h"
#include "reader/HRReaderSettings.h"

#include <QPointer>

namespace Hintreels {

/// What the reader decides, as the settings name it; null where nobody asks for it, or where it is
/// gone.
/// @param context may be null
inline HRReaderSettings *readerSettings(const HRContext *context)
{
    return setting(context, readerSettingsKey, QPointer<HRReaderSettings>());
}

} // namespace Hintreels
