// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "hintreels/check/Finding.h"
#include "hintreels/check/Suppression.h"

#include <QStringList>
#include <QVector>

namespace Hintreels {

struct Rule;

/// What a check has found.
class Report
{
public:
    void add(const Rule &rule, const Spot &spot, const QString &text);
    void suppress(const QVector<Suppression> &suppressions) { m_suppressions += suppressions; }

    /// What kept the check from being whole, such as a file that cannot be read.
    void addFailure(const QString &text) { m_failures.append(text); }

    /// Without those that are suppressed; by file and place.
    QVector<Finding> findings() const;
    const QStringList &failures() const { return m_failures; }

private:
    QVector<Finding> m_findings;
    QVector<Suppression> m_suppressions;
    QStringList m_failures;
};

} // namespace Hintreels
