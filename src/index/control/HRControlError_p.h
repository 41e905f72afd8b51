// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QString>

namespace Hintreels {

/// Where and why a file is not XML.
struct HRControlError
{
    int line; ///< counted from 1
    QString text;
};

/// What was found when files were parsed, by their paths. Whoever tells the host takes it out.
using HRControlErrors = QMap<QString, HRControlError>;

} // namespace Hintreels
