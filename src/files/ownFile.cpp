// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "files/ownFile_p.h"

#include <QByteArray>
#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Hintreels {

namespace {

bool isOwn(const struct stat &status)
{
    return S_ISREG(status.st_mode) && status.st_uid == ::geteuid() && status.st_nlink == 1
        && (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

/// Whether nothing stands at the path, or a file of ours.
bool isOwnOrMissing(const QByteArray &path)
{
    struct stat status;
    return ::lstat(path.constData(), &status) == 0 ? isOwn(status) : errno == ENOENT;
}

bool createOwnFile(const QByteArray &path)
{
    const int descriptor = ::open(
        path.constData(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor < 0)
        return false;
    ::close(descriptor);
    return true;
}

} // namespace

bool takeOwnFile(const QString &path)
{
    const QByteArray file = QFile::encodeName(path);
    for (const char *companion : { "-journal", "-wal", "-shm" }) {
        if (!isOwnOrMissing(file + companion))
            return false;
    }
    // Making it comes first, since another process may make it at the same time.
    struct stat status;
    return createOwnFile(file) || (::lstat(file.constData(), &status) == 0 && isOwn(status));
}

} // namespace Hintreels
