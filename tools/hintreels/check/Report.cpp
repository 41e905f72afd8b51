// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "hintreels/check/Report.h"

#include "hintreels/check/Rule.h"

#include <algorithm>
#include <tuple>

namespace Hintreels {

void Report::add(const Rule &rule, const Spot &spot, const QString &text)
{
    m_findings.append({ spot, rule.severity, QLatin1String(rule.tag), text });
}

QVector<Finding> Report::findings() const
{
    QVector<Finding> left;
    const auto isLeft = [this](const Finding &finding) {
        return std::none_of(m_suppressions.begin(), m_suppressions.end(),
            [&finding](const Suppression &suppression) { return suppression.covers(finding); });
    };
    std::copy_if(m_findings.begin(), m_findings.end(), std::back_inserter(left), isLeft);
    const auto place = [](const Finding &finding) {
        return std::tie(finding.spot.file, finding.spot.line, finding.spot.column, finding.tag);
    };
    std::stable_sort(left.begin(), left.end(),
        [&place](const Finding &a, const Finding &b) { return place(a) < place(b); });
    return left;
}

} // namespace Hintreels
