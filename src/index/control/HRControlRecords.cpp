// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/control/HRControlRecords_p.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace Hintreels {

namespace {

uint hashOf(const HRControlRecord &record)
{
    constexpr uint seed = 1; // only with one does Qt hash by the processor's own instruction
    return qHash(record.name, qHash(record.directory, seed) | seed) ^ uint(record.depth);
}

bool isSame(const HRControlRecord &a, const HRControlRecord &b)
{
    return a.depth == b.depth && a.name == b.name && a.directory == b.directory;
}

} // namespace

HRControlRecord::HRControlRecord(const QString &path, int levels)
    : HRControlRecord(
        path.left(path.lastIndexOf(u'/') + 1), path.mid(path.lastIndexOf(u'/') + 1), levels)
{
}

bool HRControlRecords::addFirst(HRControlRecord &&record)
{
    m_records.push_front(std::move(record));
    if (learn(m_records.front()))
        return true;
    m_records.pop_front();
    return false;
}

bool HRControlRecords::addLast(HRControlRecord &&record)
{
    m_records.push_back(std::move(record));
    if (learn(m_records.back()))
        return true;
    m_records.pop_back();
    return false;
}

bool HRControlRecords::learn(const HRControlRecord &record)
{
    if (m_known.size() < 2 * m_records.size())
        makeRoom();
    const uint hash = hashOf(record);
    Known &known = place(record, hash);
    if (known.record)
        return false;
    known = { &record, hash };
    return true;
}

void HRControlRecords::makeRoom()
{
    constexpr size_t least = 64; // a power of two, as all sizes are
    const std::vector<Known> before
        = std::exchange(m_known, std::vector<Known>(std::max(least, 2 * m_known.size()), Known{}));
    for (const Known &known : before) {
        if (known.record)
            place(*known.record, known.hash) = known;
    }
}

/// Where a record stands in the table, or the free place for it.
HRControlRecords::Known &HRControlRecords::place(const HRControlRecord &record, uint hash)
{
    const size_t last = m_known.size() - 1;
    size_t i = hash & last;
    while (m_known[i].record && (m_known[i].hash != hash || !isSame(*m_known[i].record, record)))
        i = (i + 1) & last;
    return m_known[i];
}

} // namespace Hintreels
