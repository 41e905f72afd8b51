// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSet>
#include <QString>

namespace Hintreels {

/// How much work the namespace prefixes of one document may make.
///
/// At the end of each element the reader compares all prefixes in scope with each other, so a long
/// document under thousands of prefixes takes hours. What matters is how many are in scope, how
/// long they are and how many elements that meets: elements under 32 prefixes of 64 letters, or
/// fewer or shorter ones, are free; for more the document has a budget that no honest one uses up.
class HRPrefixBudget
{
public:
    /// Takes note of a prefix that is declared, or declared once more.
    void enter(const QString &prefix);

    /// Takes note that the last declaration of a prefix ends.
    void leave(const QString &prefix);

    /// Spends what one element costs under the prefixes in scope; false where the budget is used
    /// up.
    bool spendElement();

private:
    QSet<QString> m_inScope;
    qint64 m_letters = 0; // of all in scope
    qint64 m_left = 1024LL * 1024 * 1024; // less than a second of comparing
};

} // namespace Hintreels
