// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace Hintreels {

class HRXmlElement;

/// What content chooses by an attribute: its own value, else that of its parent element, no further
/// up; an empty value of its own hides the parent's. Null for null.
QString chosenByContent(const HRXmlElement *content, const QString &attribute);

/// The first candidate that exists, or the first that holds a file; null where there is none.
/// @param relativePath the file in a candidate; empty for the candidate itself
QString firstExisting(const QStringList &candidates, const QString &relativePath);

} // namespace Hintreels
