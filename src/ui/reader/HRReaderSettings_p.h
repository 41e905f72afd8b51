// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLocale>
#include <QVector>

namespace Hintreels {

class HRManager;

/// What the reader of a popup prefers.
struct HRReaderSettings
{
    QVector<QLocale> locales; ///< the best first; never empty
    bool reducedMotion; ///< nothing is to move unless the reader asks for it
    bool showsTargets = false; ///< links tell where they lead: strangers have written them
};

/// The settings as they are now; those of the desktop where the manager is null.
HRReaderSettings readerSettings(HRManager *manager);

} // namespace Hintreels
