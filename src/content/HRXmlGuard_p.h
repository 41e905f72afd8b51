// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "content/HREntityBudget_p.h"
#include "content/HRPrefixBudget_p.h"
#include "content/HRStackBudget_p.h"

#include <QString>

namespace Hintreels {

/// Decides what one document may ask of the host while it is read.
///
/// Qt's reader recurses and compares without bounds, so that a small malicious document could
/// exhaust the stack, the memory or the user's patience. The parser asks here at each step; the
/// first refusal ends the reading. Made where the reading begins, on its thread, since it may take
/// half of the stack that is left there.
class HRXmlGuard
{
public:
    /// @param documentSize the size of the document in UTF-16 code units
    explicit HRXmlGuard(int documentSize);

    /// Whether the reader may recurse once more. Asked for every few characters, so it costs a
    /// comparison.
    bool allowsNesting() { return m_stack.isLeft() || refuseNesting(); }

    /// The prefixes in scope, which their reader keeps up to date.
    HRPrefixBudget &prefixes() { return m_prefixes; }

    /// Whether one more element may be read, under the prefixes in scope.
    bool allowsElement();

    /// @param name with a leading "%" for an entity of the document type definition
    bool allowsEntity(const QString &name, const QString &value);

    /// Whether an entity's value may be read in place of a reference to it.
    bool allowsExpansion(const QString &name);

    /// Whether the text after the document type definition may be read with all its references.
    bool allowsBody(QStringView body);

    /// Why the reading had to end, in words for a log; empty unless something was refused.
    QString refusal() const { return m_refusal; }

private:
    bool refuseNesting();
    bool refuseUnless(bool isAllowed, const char *reason);

    HRStackBudget m_stack;
    HREntityBudget m_entities;
    HRPrefixBudget m_prefixes;
    int m_elementsLeft;
    QString m_refusal;
};

} // namespace Hintreels
