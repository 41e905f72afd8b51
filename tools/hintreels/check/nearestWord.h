// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace Hintreels {

/// How many letters have to be put in, taken out, replaced or swapped with the next one to make one
/// word of the other.
int editDistance(const QString &a, const QString &b);

/// The candidate that a misspelt word was most likely meant to be; empty where none is near.
QString nearestWord(const QString &word, const QStringList &candidates);

/// "; did you mean X?" for such a candidate, else nothing.
QString suggestion(const QString &word, const QStringList &candidates);

} // namespace Hintreels
