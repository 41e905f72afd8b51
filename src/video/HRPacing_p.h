// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QtGlobal>

namespace Hintreels {

/// How long to wait after a picture was shown while playing.
struct HRPacing
{
    quint64 displayed = 0; ///< index of the picture fetched last
    quint64 position = 0; ///< index of the picture to show, before it moved on
    double frameRate = 0.0; ///< pictures per second
    QDateTime last; ///< when the position last moved on; invalid before that
    QDateTime now;

    /// Milliseconds, 0 where the rate says nothing: one period as a rule, or else what the
    /// pictures take that nobody has fetched, as far as that time has not passed.
    int delay() const;
};

} // namespace Hintreels
