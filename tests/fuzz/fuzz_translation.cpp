// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "fuzz/FuzzTarget.h"
#include "fuzz/MemoryFile.h"
#include "manager/translationCheck_p.h"

#include <QTranslator>

using namespace Hintreels;

// Qt reads what the check lets through, right before a page that it may not read.
void fuzzTranslation(const QByteArray &input)
{
    if (!isSafeTranslation(input))
        return;
    const FencedBytes file(input);
    QTranslator translator;
    if (!translator.load(file.data(), file.size()))
        return;
    for (const char *context : { "", "StandardUI", "Content" }) {
        for (const char *text : { "", "Tip", "Documentation", "Straße" })
            translator.translate(context, text, "a comment", 2);
    }
}
