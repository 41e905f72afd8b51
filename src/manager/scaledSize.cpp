// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/scaledSize_p.h"

#include <QtGlobal>

#include <limits>

namespace Hintreels {

int scaledSize(int size, float scale)
{
    if (scale == 0.0F)
        return size;
    // Clamped below the limits of int, which single precision cannot hold exactly.
    constexpr auto limit = float(std::numeric_limits<int>::max() - 127);
    return int(qBound(-limit, scale * float(size), limit));
}

} // namespace Hintreels
