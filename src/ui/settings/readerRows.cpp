// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/settings/readerRows_p.h"

#include "reader/HRReaderSettings.h"

#include <algorithm>
#include <initializer_list>

namespace Hintreels {

namespace {

constexpr const char *seconds = "%1 s";
constexpr const char *perCent = "%1 %";
constexpr const char *times = "%1 \u00d7";

/// A row that offers numbers behind the options that it has.
HRReaderRow numbered(HRReaderRow row, std::initializer_list<int> values)
{
    for (const int value : values)
        row.options.append({ row.number, value, value / double(row.unit) });
    return row;
}

} // namespace

const QVector<HRReaderRow> &readerRows()
{
    static const QVector<HRReaderRow> rows{
        { "hintsShown", "Show hints" },
        { "detail", "Content",
            { { "Everything", HRReaderSettings::fullDetail },
                { "Text only", HRReaderSettings::textDetail },
                { "Title and summary", HRReaderSettings::summaryDetail } } },
        { "startsSmall", "Start small" },
        numbered({ "seenLimit", "Small once seen", { { "Never", 0 } }, times }, { 1, 3, 10 }),
        { "occasion", "Appear",
            { { "When the pointer rests", HRReaderSettings::occasionHover },
                { "While Ctrl is held", HRReaderSettings::occasionModifier },
                { "Only by a key", HRReaderSettings::occasionKey } } },
        numbered({ "delay", "After a rest of", { { "As usual", -1 } }, seconds, 1000 },
            { 200, 500, 1000, 2000, 4000 }),
        numbered({ "duration", "Stay for", { { "As usual", -1 }, { "Until closed", 0 } }, seconds,
                     1000 },
            { 1000, 10'000, 60'000 }),
        { "clips", "Clips",
            { { "Play by themselves", HRReaderSettings::clipsByThemselves },
                { "Play once", HRReaderSettings::clipsOnce },
                { "Play on request", HRReaderSettings::clipsOnRequest } } },
        { "captionsShown", "Show captions" },
        numbered({ "textSize", "Text size", {}, perCent }, { 75, 100, 125, 150, 200, 300 }),
    };
    return rows;
}

HRReaderOption optionOf(const HRReaderRow &row, int value)
{
    const auto offered = std::find_if(row.options.begin(), row.options.end(),
        [value](const HRReaderOption &option) { return option.value == value; });
    const HRReaderOption asNumber{ row.number, value, value / double(row.unit) };
    return offered == row.options.end() ? asNumber : *offered;
}

} // namespace Hintreels
