// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRPrefixBudget_p.h"

namespace Hintreels {

namespace {

// What it takes to compare two prefixes of no letters, measured in letters.
constexpr qint64 comparison = 8;

constexpr qint64 cost(qint64 prefixes, qint64 letters)
{
    return prefixes * (letters + prefixes * comparison);
}

constexpr qint64 freeCost = cost(32, qint64(32 * 64));

} // namespace

void HRPrefixBudget::enter(const QString &prefix)
{
    if (m_inScope.contains(prefix))
        return;
    m_inScope.insert(prefix);
    m_letters += prefix.size();
}

void HRPrefixBudget::leave(const QString &prefix)
{
    if (m_inScope.remove(prefix))
        m_letters -= prefix.size();
}

bool HRPrefixBudget::spendElement()
{
    const qint64 spent = cost(m_inScope.size(), m_letters);
    if (spent > freeCost)
        m_left -= spent;
    return m_left >= 0;
}

} // namespace Hintreels
