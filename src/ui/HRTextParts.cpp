// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/HRTextParts_p.h"

#include <QFontDatabase>

namespace Hintreels {

QVector<QTextFragment> fragmentsOf(const QTextBlock &block)
{
    QVector<QTextFragment> fragments;
    for (auto it = block.begin(); !it.atEnd(); ++it)
        fragments.append(it.fragment());
    return fragments;
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
