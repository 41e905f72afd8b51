// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/HRControlRecords_p.h"

#include <utility>

namespace Hintreels {

bool HRControlRecords::addFirst(HRControlRecord &&record)
{
    if (!learn(record))
        return false;
    m_records.push_front(std::move(record));
    return true;
}

bool HRControlRecords::addLast(HRControlRecord &&record)
{
    if (!learn(record))
        return false;
    m_records.push_back(std::move(record));
    return true;
}

bool HRControlRecords::learn(const HRControlRecord &record)
{
    const int count = m_known.size();
    m_known.insert({ record.path, record.depth });
    return m_known.size() > count;
}

} // namespace Hintreels
