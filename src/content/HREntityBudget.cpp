// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HREntityBudget_p.h"

#include <QStringList>
#include <QtMath>

namespace Hintreels {

namespace {

const double alwaysAllowed = 8 * 1024 * 1024;
const double allowedGrowth = 100;

// The reader compares each declared entity with each one before it. XHTML declares 253.
const int maximumEntities = 1000;

} // namespace

HREntityBudget::HREntityBudget(int documentSize)
    : m_limit(qMax(alwaysAllowed, allowedGrowth * documentSize))
{
}

bool HREntityBudget::declare(const QString &name, const QString &value)
{
    m_entities.insert(name, { value.size(), referencesIn(QStringRef(&value)), false, qInf() });
    return m_entities.size() <= maximumEntities;
}

bool HREntityBudget::covers(const QStringRef &text)
{
    const References references = referencesIn(text);
    for (auto reference = references.cbegin(); reference != references.cend(); ++reference)
        measure(reference.key());
    return expandedSize(references) <= m_limit;
}

bool HREntityBudget::spend(const QString &name)
{
    const auto entity = m_entities.constFind(name);
    if (entity != m_entities.constEnd())
        m_spent += entity->size;
    return m_spent <= m_limit;
}

HREntityBudget::References HREntityBudget::referencesIn(const QStringRef &text)
{
    References references;
    for (int start = text.indexOf('&'); start >= 0; start = text.indexOf('&', start)) {
        const int nameStart = ++start;
        while (start < text.size() && text.at(start) != ';' && text.at(start) != '&')
            ++start;
        if (start < text.size() && text.at(start) == ';')
            ++references[text.mid(nameStart, start - nameStart).toString()];
    }
    return references;
}

/// Finds the expanded size of an entity after those of all that it refers to, without recursion. An
/// entity that is met again before it is measured contains itself, and keeps the infinite size
/// that it was declared with.
void HREntityBudget::measure(const QString &name)
{
    QStringList path{ name };
    while (!path.isEmpty()) {
        const auto entity = m_entities.find(path.last());
        if (entity == m_entities.end()) {
            path.removeLast();
        } else if (entity->isEntered) {
            entity->expandedSize = entity->size + expandedSize(entity->references);
            path.removeLast();
        } else {
            entity->isEntered = true;
            for (auto next = entity->references.cbegin(); next != entity->references.cend();
                 ++next) {
                if (!m_entities.value(next.key()).isEntered)
                    path.append(next.key());
            }
        }
    }
}

double HREntityBudget::expandedSize(const References &references) const
{
    double size = 0;
    for (auto reference = references.cbegin(); reference != references.cend(); ++reference) {
        const auto entity = m_entities.constFind(reference.key());
        if (entity != m_entities.constEnd())
            size += reference.value() * entity->expandedSize;
    }
    return size;
}

} // namespace Hintreels
