// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "widgets/HRCoverage.h"
#include "widgets/parts/HRPart_p.h"

namespace Hintreels {

/// A part, and whether a reader does something with it.
struct HRWalkedPart
{
    HRPart part;
    bool isInteractive;
};

/// All parts of a window: of its pages that are not on top, and of its menus, too.
QVector<HRWalkedPart> walkParts(QWidget *window);

/// Holds parts against the keys that have content. Those that are gone do not count.
/// @param keys may hold a key more than once
HRCoverage coverageOf(const QVector<HRWalkedPart> &parts, const QStringList &keys);

} // namespace Hintreels
