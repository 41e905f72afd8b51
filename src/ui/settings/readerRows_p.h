// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QVector>

namespace Hintreels {

/// One of the values that a reader may choose.
struct HRReaderOption
{
    const char *text; ///< in English; with %1 for the number
    int value;
    double number = 0;
};

/// What the settings page shows for one property of HRReaderSettings.
struct HRReaderRow
{
    const char *property;
    const char *text; ///< in English
    QVector<HRReaderOption> options = {}; ///< empty for yes or no
    const char *number = nullptr; ///< text of a value that is a number, with %1
    int unit = 1; ///< that many are 1 in the text
};

/// In the order in which the page shows them: whether there are hints is the first.
const QVector<HRReaderRow> &readerRows();

/// The option of a row for a value, also for one that the page does not offer.
HRReaderOption optionOf(const HRReaderRow &row, int value);

} // namespace Hintreels
