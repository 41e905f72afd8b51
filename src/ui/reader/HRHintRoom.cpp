// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/HRHintRoom_p.h"

#include "ui/reader/textCut_p.h"

#include <algorithm>

namespace Hintreels {

QString HRHintRoom::take(const QString &text, int longest)
{
    if (text.isEmpty())
        return {};
    const QString taken = cutText(text, std::max(1, std::min(longest, m_characters)));
    take(taken.size());
    return taken;
}

void HRHintRoom::take(int size)
{
    m_characters -= size;
}

} // namespace Hintreels
