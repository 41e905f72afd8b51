// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QVariantList>

QT_BEGIN_NAMESPACE
class QTextDocument;
QT_END_NAMESPACE

namespace Hintreels {

/// What a screen reader says of a text, in reading order, each word once.
///
/// A map for each paragraph, heading or list: its "kind", the positions "start" and "end", and
/// under "parts" a list of maps of what is inside, those of the items in a list. Where no link or
/// picture stands in it, a passage has no parts, and says itself under "text" what it says; else
/// its parts are of kind "text", "link" and "picture", the latter two as linksIn() and picturesIn()
/// tell them. The number of a list's item is part of its text. Empty lines are left out.
QVariantList passagesIn(const QTextDocument &document);

} // namespace Hintreels
