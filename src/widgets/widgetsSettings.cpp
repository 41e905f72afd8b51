// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/widgetsSettings_p.h"

#include <QPair>

namespace Hintreels {

namespace {

/// What is on, unless the host says otherwise. A line for each setting.
const QPair<contextKey, QVariant> defaults[] = {
    { applicationFilterKey, true },
    { ownFilesOnlyKey, true },
    { placementKey, int(placementBeside) },
    { popupPressesKey, true },
    { nativeDismissalKey, true },
    { hostToolTipsKey, true },
    { hostColorsKey, true },
    { reportBrokenFilesKey, true },
    { requireUiKey, true },
    { hintShortcutKey, QStringLiteral("Shift+F1") },
    { dismissalByEscapeKey, true },
    { spokenHintsKey, true },
};

} // namespace

HRContext widgetsSettings(const HRContext &host)
{
    HRContext settings(host);
    for (const auto &[key, value] : defaults) {
        if (!settings.contains(key))
            settings.set(key, value);
    }
    return settings;
}

} // namespace Hintreels
