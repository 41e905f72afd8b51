// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/HRControlRecords_p.h"

#include <QFile>

namespace Hintreels {

HRControlRecord *HRControlRecords::addFirst(const QString &path, int depth)
{
    if (!learn(path, depth))
        return nullptr;
    m_records.push_front({ path, depth, QFile::encodeName(path) });
    return &m_records.front();
}

HRControlRecord *HRControlRecords::addLast(const QString &path, int depth)
{
    if (!learn(path, depth))
        return nullptr;
    m_records.push_back({ path, depth, QFile::encodeName(path) });
    return &m_records.back();
}

bool HRControlRecords::learn(const QString &path, int depth)
{
    if (m_known.contains(path, depth))
        return false;
    m_known.insert(path, depth);
    return true;
}

} // namespace Hintreels
