// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "index/HRControlReading_p.h"
#include "index/HRFileStamp_p.h"

#include <QByteArray>
#include <QPair>
#include <QSet>
#include <QString>

#include <deque>

namespace Hintreels {

/// A control file as it was named to the index, and what is remembered of it.
struct HRControlRecord
{
    QString path;
    int depth; // levels below the package directory; 1 directly in it
    QByteArray nativePath; // as QFile::encodeName() spells it
    HRControlReading reading = {};
    HRFileStamp stamp = {}; // of the file when the reading was taken
    bool isSettled = false; // whether the stamp will tell of every edit since
};

/// The known control files in the order in which they are tried, one for each path and depth.
class HRControlRecords
{
public:
    /// Takes a file in, to be tried before all others; false where it is known.
    bool addFirst(HRControlRecord &&record);

    /// Takes a file in, to be tried after all others; false where it is known.
    bool addLast(HRControlRecord &&record);

    std::deque<HRControlRecord>::iterator begin() { return m_records.begin(); }
    std::deque<HRControlRecord>::iterator end() { return m_records.end(); }

private:
    bool learn(const HRControlRecord &record);

    std::deque<HRControlRecord> m_records;
    QSet<QPair<QString, int>> m_known; // paths and depths
};

} // namespace Hintreels
