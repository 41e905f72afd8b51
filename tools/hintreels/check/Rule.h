// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "hintreels/check/Finding.h"

#include <functional>
#include <vector>

namespace Hintreels {

class ControlFile;
class Package;
struct Element;

/// Takes down a finding of a rule.
using Tell = std::function<void(const Spot &, const QString &text)>;

/// One thing that is wrong, or better otherwise, with packages. A rule looks at each element of the
/// files with hints, at each file, or at a package after all its files were read.
struct Rule
{
    const char *tag; ///< stands in messages, and names the rule in a suppression
    Severity severity;
    const char *what; ///< a line without a full stop
    const char *why;
    const char *mend; ///< how to
    const char *example; ///< lines of XML, or of a shell; the right way
    void (*ofElement)(const Element &, const Tell &) = nullptr;
    void (*ofFile)(const ControlFile &, const Tell &) = nullptr;
    void (*ofPackage)(const Package &, const Tell &) = nullptr;
};

// Each list in a file of its name, with its rules.
std::vector<Rule> fileRules(); ///< what is in a file that is none of the library's
std::vector<Rule> shapeRules(); ///< names of elements and attributes, and values
std::vector<Rule> searchRules(); ///< what is looked for in packages
std::vector<Rule> keyRules();
std::vector<Rule> packageRules();
std::vector<Rule> mediaRules(); ///< pictures, clips, captions
std::vector<Rule> textRules(); ///< what a reader reads

/// All of them, in the order of the reference.
const std::vector<Rule> &allRules();

/// Null for none.
const Rule *ruleOfTag(const QString &tag);

} // namespace Hintreels
