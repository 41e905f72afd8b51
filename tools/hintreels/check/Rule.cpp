// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "hintreels/check/Rule.h"

#include <algorithm>

namespace Hintreels {

const std::vector<Rule> &allRules()
{
    static const std::vector<Rule> all = [] {
        std::vector<Rule> rules;
        for (const auto &list : { fileRules(), shapeRules(), searchRules(), keyRules(),
                 packageRules(), mediaRules(), textRules() })
            rules.insert(rules.end(), list.begin(), list.end());
        return rules;
    }();
    return all;
}

const Rule *ruleOfTag(const QString &tag)
{
    const auto &rules = allRules();
    const auto rule = std::find_if(rules.begin(), rules.end(),
        [&tag](const Rule &candidate) { return tag == QLatin1String(candidate.tag); });
    return rule == rules.end() ? nullptr : &*rule;
}

} // namespace Hintreels
