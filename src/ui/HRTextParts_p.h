// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTextBlock>
#include <QVector>

namespace Hintreels {

/// The runs of a block that have one format each, in their order.
QVector<QTextFragment> fragmentsOf(const QTextBlock &block);

/// Whether a block is a line of a code block.
bool isCode(const QTextBlock &block);

/// Whether characters are code, in a line of text or in a block of code.
bool isCode(const QTextCharFormat &format);

} // namespace Hintreels
