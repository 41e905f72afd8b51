// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/HRControlRecords_p.h"

namespace Hintreels {

bool HRControlRecords::addFirst(const QString &path, int depth)
{
    if (contains(path, depth))
        return false;
    m_known.insert(path, depth);
    m_records.push_front({ path, depth });
    return true;
}

bool HRControlRecords::addLast(const QString &path, int depth)
{
    if (contains(path, depth))
        return false;
    m_known.insert(path, depth);
    m_records.push_back({ path, depth });
    return true;
}

} // namespace Hintreels
