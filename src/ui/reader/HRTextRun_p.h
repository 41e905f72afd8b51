// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QTextBlock>
#include <QTextCharFormat>
#include <QVector>

namespace Hintreels {

/// Characters of one format in a block.
///
/// As they were: Qt's own fragments point anywhere once their document has changed.
struct HRTextRun
{
    int position; ///< in the document
    QString text;
    QTextCharFormat format;

    int length() const { return text.size(); }
    int end() const { return position + length(); }
};

/// The runs of a block in their order.
QVector<HRTextRun> runsOf(const QTextBlock &block);

/// Whether a block is a line of a code block.
bool isCode(const QTextBlock &block);

/// Whether characters are code, in a line of text or in a block of code.
bool isCode(const QTextCharFormat &format);

} // namespace Hintreels
