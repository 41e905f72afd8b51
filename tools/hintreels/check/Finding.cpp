// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "hintreels/check/Finding.h"

namespace Hintreels {

QString severityName(Severity severity)
{
    switch (severity) {
    case Severity::error:
        return QStringLiteral("error");
    case Severity::warning:
        return QStringLiteral("warning");
    case Severity::hint:
        break;
    }
    return QStringLiteral("hint");
}

} // namespace Hintreels
