// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/HRTextRun_p.h"

#include <QFontDatabase>

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
    // What Qt's Markdown reader sets code in; it does not always come with the fixed-pitch
    // property.
    return format.fontFixedPitch()
        || format.fontFamily() == QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
}

} // namespace Hintreels
