// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HREntityBudget_p.h"

#include <QStringList>
#include <QtMath>

namespace Hintreels {

namespace {

const double alwaysAllowed = 8 * 1024 * 1024;
const double allowedGrowth = 100;

// HTML declares 2,231.
const int maximumEntities = 4096;

// The reader searches each declared entity for each other one: a second for 4,096 entities of 128
// characters, and for a thousand entities a second a megabyte or less.
const double alwaysSearched = 2.0 * 1024 * 1024 * 1024;
const double searchedGrowth = 1000;

} // namespace

HREntityBudget::HREntityBudget(int documentSize)
    : m_limit(qMax(alwaysAllowed, allowedGrowth * documentSize))
    , m_searchLimit(qMax(alwaysSearched, searchedGrowth * documentSize))
{
}

bool HREntityBudget::declare(const QString &name, const QString &value)
{
    m_entities.insert(name, { int(value.size()), referencesIn(value), false, qInf() });
    m_declared += value.size();
    return m_entities.size() <= maximumEntities && m_entities.size() * m_declared <= m_searchLimit;
}

bool HREntityBudget::covers(QStringView text)
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

HREntityBudget::References HREntityBudget::referencesIn(QStringView text)
{
    References references;
    for (auto start = text.indexOf(u'&'); start >= 0; start = text.indexOf(u'&', start)) {
        const auto nameStart = ++start;
        while (start < text.size() && text.at(start) != u';' && text.at(start) != u'&')
            ++start;
        if (start < text.size() && text.at(start) == u';')
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
