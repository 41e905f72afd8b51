// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <chrono>
#include <optional>

class QByteArray;
class QString;

namespace Hintreels {

/// What the file system tells about a file without reading it. Another edit gives another stamp,
/// unless it comes so soon after the last one that the clock of the file system shows no change.
struct HRFileStamp
{
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = -1;
    qint64 modified = 0; // time of the content's last change, ns since 1970
    qint64 changed = 0; // time of the last change to content or attributes, ns since 1970

    bool operator==(const HRFileStamp &other) const
    {
        return modified == other.modified && changed == other.changed && size == other.size
            && inode == other.inode && device == other.device;
    }
    bool operator!=(const HRFileStamp &other) const { return !(*this == other); }
};

/// Nanoseconds since 1970.
inline qint64 nanosecondsNow()
{
    using namespace std::chrono;
    return duration_cast<nanoseconds>(system_clock::now().time_since_epoch()).count();
}

/// Whether a reading begun at @p now (ns since 1970) can be told from every later edit by the
/// file's stamp alone.
///
/// File systems count time in steps of up to two seconds (FAT), so an edit within the step of the
/// stamp leaves no trace in it. Version-control systems go by the same rule.
inline bool isSettled(const HRFileStamp &stamp, qint64 now)
{
    constexpr qint64 longestStep = 2'500'000'000;
    return qAbs(now - stamp.modified) > longestStep && qAbs(now - stamp.changed) > longestStep;
}

/// The stamp of a regular file or a link to one; nothing for anything else.
/// @param path as QFile::encodeName() spells it
std::optional<HRFileStamp> stampOfFile(const QByteArray &path);

/// The same for a name in a directory, which is given with its slash.
std::optional<HRFileStamp> stampOfFile(const QString &directory, const QString &name);

} // namespace Hintreels
