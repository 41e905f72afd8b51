// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QString>

#include <deque>

namespace Hintreels {

/// A control file as it was named to the index.
struct HRControlRecord
{
    QString path;
    int depth; // levels below the package directory; 1 directly in it
};

/// The known control files in the order in which they are tried, one for each path and depth.
class HRControlRecords
{
public:
    /// Takes a file in, to be tried before all others; false where it is known.
    bool addFirst(const QString &path, int depth);

    /// Takes a file in, to be tried after all others; false where it is known.
    bool addLast(const QString &path, int depth);

    bool contains(const QString &path, int depth) const { return m_known.contains(path, depth); }

    std::deque<HRControlRecord>::iterator begin() { return m_records.begin(); }
    std::deque<HRControlRecord>::iterator end() { return m_records.end(); }

private:
    std::deque<HRControlRecord> m_records;
    QMultiHash<QString, int> m_known; // the depths of each path
};

} // namespace Hintreels
