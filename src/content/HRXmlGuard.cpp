// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlGuard_p.h"

namespace Hintreels {

namespace {

// An element takes four characters or more. So many that there are more come out of entities, where
// a short text can stand for a great number of them.
const int charactersPerElement = 4;
const int alwaysAllowedElements = 50000;

// Groups are read by recursion, which is out of sight where they stand in an entity.
const int maximumGroups = 256;

const char *const nestingReason = "elements are nested too deeply";
const char *const expansionReason = "entities expand to too much text";

} // namespace

HRXmlGuard::HRXmlGuard(int documentSize)
    : m_entities(documentSize)
    , m_elementsLeft(qMax(documentSize / charactersPerElement, alwaysAllowedElements))
{
}

bool HRXmlGuard::refuseNesting()
{
    return refuseUnless(false, nestingReason);
}

bool HRXmlGuard::allowsElement()
{
    return allowsNesting() && refuseUnless(m_elementsLeft-- > 0, expansionReason)
        && refuseUnless(m_prefixes.spendElement(), "too many or too long namespace prefixes");
}

bool HRXmlGuard::allowsEntity(const QString &name, const QString &value)
{
    const bool isParameter = name.startsWith(u'%');
    const bool isFlat = !isParameter || value.count(u'(') <= maximumGroups;
    return refuseUnless(isFlat, nestingReason)
        && refuseUnless(m_entities.declare(name.mid(isParameter ? 1 : 0), value),
            "too many entities are declared");
}

bool HRXmlGuard::allowsExpansion(const QString &name)
{
    return refuseUnless(m_entities.spend(name), expansionReason);
}

bool HRXmlGuard::allowsBody(QStringView body)
{
    return refuseUnless(m_entities.covers(body), expansionReason);
}

bool HRXmlGuard::refuseUnless(bool isAllowed, const char *reason)
{
    if (!isAllowed)
        m_refusal = QLatin1String(reason);
    return isAllowed;
}

} // namespace Hintreels
