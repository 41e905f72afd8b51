// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QString>

namespace Hintreels {

/// How much text the entities of one document may expand to.
///
/// A few lines of entities that refer to each other can stand for gigabytes of text. Expansion is
/// refused above 8 MiB, and above 100 times the document's own size where that is more: the rule
/// of other XML parsers, which honest documents keep by orders of magnitude. So is the declaration
/// of more than 4,096 entities, or of fewer and longer ones than the reader can search in about a
/// second a megabyte. Sizes are in UTF-16 code units, names are without "&", "%" and ";".
class HREntityBudget
{
public:
    /// @param documentSize the size of the document with nothing expanded
    explicit HREntityBudget(int documentSize);

    /// Takes note of an entity; false where the document has declared enough of them.
    bool declare(const QString &name, const QString &value);

    /// Whether all that this text refers to, once expanded, is within the budget. To be asked when
    /// all entities are declared. Entities that contain themselves never are within it.
    bool covers(QStringView text);

    /// Spends the entity's own value, which is about to be read; false where the budget is used up.
    /// This also sees references that become complete in reading only, as covers() cannot.
    bool spend(const QString &name);

private:
    using References = QHash<QString, int>; // how often each name is referred to

    struct Entity
    {
        int size;
        References references;
        bool isEntered; // by measure()
        double expandedSize; // floating, since it may exceed any integer
    };

    static References referencesIn(QStringView text);

    void measure(const QString &name);
    double expandedSize(const References &references) const;

    QHash<QString, Entity> m_entities;
    double m_limit;
    double m_searchLimit; // entities times characters in all of them
    double m_declared = 0;
    double m_spent = 0;
};

} // namespace Hintreels
