// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace Hintreels {

/// A length of QML as one that a widget can have: truncated, and neither negative nor endless.
inline int widgetLength(qreal length)
{
    return int(qBound(0.0, length, double(QWIDGETSIZE_MAX)));
}

} // namespace Hintreels
