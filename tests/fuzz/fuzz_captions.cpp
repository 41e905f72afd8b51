// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "fuzz/FuzzTarget.h"
#include "fuzz/MemoryFile.h"
#include "support/Promises.h"
#include "video/captions_p.h"

#include <cmath>

using namespace Hintreels;

void fuzzCaptions(const QByteArray &input)
{
    const MemoryFile file(input);
    const QVector<HRCaption> captions = readCaptions(file.path());
    for (const HRCaption &caption : captions) {
        require(std::isfinite(caption.start) && std::isfinite(caption.end), "times are finite");
        require(!caption.text.isEmpty(), "a caption has a text");
    }
}
