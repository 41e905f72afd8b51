// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "files/HRDoomedFile_p.h"

#include "files/posix_p.h"

#include <QFile>

#include <optional>

#include <sys/file.h>
#include <unistd.h>

namespace Hintreels {

namespace {

bool isSameFile(const std::optional<HRFileStamp> &one, const HRFileStamp &other)
{
    return one && one->inode == other.inode && one->device == other.device;
}

} // namespace

HRDoomedFile::HRDoomedFile(const QString &path, const HRFileStamp &stamp)
    : m_path(QFile::encodeName(path))
    , m_descriptor(openForReading(m_path.constData()))
{
    if (isSameFile(stampOfDescriptor(m_descriptor), stamp))
        return;
    ::close(m_descriptor);
    m_descriptor = -1;
}

HRDoomedFile::~HRDoomedFile()
{
    ::close(m_descriptor);
}

void HRDoomedFile::remove()
{
    // Who comes second finds another file at the path, or none.
    if (m_descriptor < 0 || ::flock(m_descriptor, LOCK_EX) != 0)
        return;
    const std::optional<HRFileStamp> stamp = stampOfDescriptor(m_descriptor);
    if (stamp && isSameFile(stampAt(m_path.constData()), *stamp))
        ::unlink(m_path.constData());
    ::flock(m_descriptor, LOCK_UN);
}

} // namespace Hintreels
