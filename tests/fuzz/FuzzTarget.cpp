// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "fuzz/FuzzTarget.h"

const std::vector<FuzzTarget> &fuzzTargets()
{
    static const std::vector<FuzzTarget> targets{
        { "element-builder", fuzzElementBuilder },
        { "control-file", fuzzControlFile },
        { "key-data", fuzzKeyData },
        { "translation", fuzzTranslation },
        { "interpolation", fuzzInterpolation },
        { "text-style", fuzzTextStyle },
        { "captions", fuzzCaptions },
        { "path-attributes", fuzzPathAttributes },
        { "database", fuzzDatabase },
        { "clip", fuzzClip },
    };
    return targets;
}
