// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/control/HRControlPrefilter_p.h"

#include "files/HRRegularFile_p.h"
#include "index/control/HRControlRecords_p.h"

#include <QFile>

namespace Hintreels {

namespace {

/// Qt's resources are no files to the operating system; they have no stamp and are always tried.
bool isResource(const HRControlRecord &record)
{
    return record.directory.startsWith(u':');
}

} // namespace

bool HRControlPrefilter::mayRead(const QString &path) const
{
    const std::optional<HRFileStamp> stamp = stampOfFile(QFile::encodeName(path));
    return !stamp || m_judge(path, stamp->size);
}

bool HRControlPrefilter::mayServe(HRControlRecord &record, quint32 key, const QLocale &locale)
{
    if (isResource(record))
        return true;
    return (isCurrent(record) || read(record)) && record.digest.mayServe(key, locale);
}

bool HRControlPrefilter::read(HRControlRecord &record)
{
    const qint64 now = nanosecondsNow();
    record.isSettled = false;
    const QString path = record.path();
    HRRegularFile file(QFile::encodeName(path));
    if (!file.isOpen() || !m_judge(path, file.stamp().size))
        return false;
    record.stamp = file.stamp();
    std::optional<HRControlDigest> digest;
    if (file.readAll(m_bytes))
        digest = digestBySearching(m_bytes);
    record.digest = digest ? std::move(*digest) : digestByParsing(path, m_errors);
    record.isSettled = isSettled(record.stamp, now);
    return true;
}

bool HRControlPrefilter::isCurrent(HRControlRecord &record)
{
    return record.isSettled && stampOfFile(record.directory, record.name) == record.stamp;
}

} // namespace Hintreels
