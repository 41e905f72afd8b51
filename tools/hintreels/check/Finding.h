// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace Hintreels {

/// How bad a finding is. What is an error or a warning keeps a package from passing.
enum class Severity
{
    error, ///< readers see less than was written
    warning, ///< readers may see something else than was meant
    hint, ///< it would be better otherwise
};

/// The word that stands in messages; never translated.
QString severityName(Severity severity);

/// Where a finding is.
struct Spot
{
    QString file; ///< absolute path; may be a directory
    int line = 1; ///< counted from 1
    int column = 1; ///< counted from 1, in UTF-16 units
};

/// Something in a package that its writer should know.
struct Finding
{
    Spot spot;
    Severity severity;
    QString tag; ///< of the rule that found it
    QString text;
};

} // namespace Hintreels
