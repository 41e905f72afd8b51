// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/HRTextRun_p.h"

namespace Hintreels {

QVector<HRTextRun> runsOf(const QTextBlock &block)
{
    QVector<HRTextRun> runs;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        runs.append({ fragment.position(), fragment.text(), fragment.charFormat() });
    }
    return runs;
}

bool isCode(const QTextBlock &block)
{
    return block.blockFormat().hasProperty(QTextFormat::BlockCodeFence)
        || block.blockFormat().hasProperty(QTextFormat::BlockCodeLanguage);
}

bool isCode(const QTextCharFormat &format)
{
    // Qt's Markdown reader names a family for code only; not always is it of fixed pitch.
    // That of Qt 6 names a list of them.
    return format.fontFixedPitch() || format.hasProperty(QTextFormat::FontFamily)
        || format.hasProperty(QTextFormat::FontFamilies);
}

} // namespace Hintreels
