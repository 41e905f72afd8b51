// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/HRPosixFile_p.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Hintreels {

namespace {

bool isRegular(int descriptor)
{
    struct stat status;
    return ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

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

bool openRegularFile(QFile &file, const QString &path)
{
    if (path.startsWith(QLatin1Char(':'))) {
        file.setFileName(path);
        return file.open(QIODevice::ReadOnly);
    }
    // Not blocking means that a pipe, too, is opened at once, and then found out.
    const int descriptor
        = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0)
        return false;
    if (isRegular(descriptor)
        && file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return true;
    ::close(descriptor);
    return false;
}

bool takeOwnFile(const QString &path)
{
    const QByteArray file = QFile::encodeName(path);
    for (const char *companion : { "-journal", "-wal", "-shm" }) {
        if (!isOwnOrMissing(file + companion))
            return false;
    }
    struct stat status;
    if (::lstat(file.constData(), &status) == 0)
        return isOwn(status);
    return createOwnFile(file);
}

} // namespace Hintreels
