// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "files/HRFileStamp_p.h"
#include "index/control/HRControlDigest_p.h"

#include <QString>

#include <deque>
#include <vector>

namespace Hintreels {

/// A control file as it was named to the index, and what is remembered of it. There are thousands,
/// so none keeps what its neighbours keep, too.
struct HRControlRecord
{
    HRControlRecord(const QString &path, int levels);

    /// @param place the directory with its slash; the memory of its text is shared
    HRControlRecord(const QString &place, const QString &fileName, int levels)
        : directory(place)
        , name(fileName)
        , depth(levels)
    {
    }

    QString path() const { return directory + name; }

    QString directory; // with its slash
    QString name;
    int depth; // levels below the package directory; 1 directly in it
    bool isSettled = false; // whether the stamp will tell of every edit since the reading
    HRControlDigest digest;
    HRFileStamp stamp; // of the file when the digest was taken
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
    struct Known
    {
        const HRControlRecord *record;
        uint hash;
    };

    bool learn(const HRControlRecord &record);
    void makeRoom();
    Known &place(const HRControlRecord &record, uint hash);

    std::deque<HRControlRecord> m_records; // which stay where they are while others are added
    // A hash table in one piece, with more room than records: a set would need memory for each.
    std::vector<Known> m_known;
};

} // namespace Hintreels
