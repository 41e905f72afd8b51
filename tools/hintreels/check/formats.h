// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "hintreels/check/Finding.h"

#include <QByteArray>
#include <QVector>

namespace Hintreels {

struct Rule;

/// Findings in a format that others read.
using Format = QByteArray (*)(const QVector<Finding> &findings);

/// `file:line:column: severity: tag: text`, a line each.
QByteArray asText(const QVector<Finding> &findings);

/// An object with a list `findings`; each has the six parts by these names.
QByteArray asJson(const QVector<Finding> &findings);

/// SARIF 2.1.0, with all rules.
QByteArray asSarif(const QVector<Finding> &findings);

/// The one of this name; null for none.
Format formatOfName(const QString &name);

/// A path as messages name it: below the current directory by the rest, else whole.
QString shownPath(const QString &path);

/// All about a rule, as Markdown.
QByteArray explanation(const Rule &rule);

} // namespace Hintreels
