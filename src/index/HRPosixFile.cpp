// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/HRPosixFile_p.h"

#include <QByteArray>
#include <QFile>

#include <cerrno>
#include <limits>

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

qint64 nanoseconds(const struct timespec &time)
{
    return qint64(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

HRFileStamp stampOf(const struct stat &status)
{
    return { status.st_dev, status.st_ino, status.st_size, nanoseconds(status.st_mtim),
        nanoseconds(status.st_ctim) };
}

// Not blocking means that a named pipe, too, is opened at once, and then found out.
int openForReading(const QByteArray &path)
{
    return ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
}

/// Reads up to the end of a file that may be growing or shrinking meanwhile.
bool readToEnd(int descriptor, qint64 expectedSize, QByteArray &bytes)
{
    constexpr qint64 LargestArray = std::numeric_limits<int>::max() / 2;
    if (expectedSize > LargestArray)
        return false;
    bytes.resize(int(expectedSize) + 1); // one more, to meet the end in the first read
    int length = 0;
    for (;;) {
        const ssize_t got
            = ::read(descriptor, bytes.data() + length, size_t(bytes.size() - length));
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0) {
            bytes.resize(length);
            return got == 0;
        }
        length += int(got);
        if (length > LargestArray)
            return false;
        if (length == bytes.size())
            bytes.resize(length * 2);
    }
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
    const int descriptor = openForReading(QFile::encodeName(path));
    if (descriptor < 0)
        return false;
    if (isRegular(descriptor)
        && file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return true;
    ::close(descriptor);
    return false;
}

std::optional<HRFileStamp> stampOfFile(const QByteArray &path)
{
    struct stat status;
    if (::stat(path.constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    return stampOf(status);
}

bool readWholeFile(const QByteArray &path, QByteArray &bytes, HRFileStamp &stamp)
{
    const int descriptor = openForReading(path);
    if (descriptor < 0)
        return false;
    struct stat status;
    bool isRead = false;
    if (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode)) {
        stamp = stampOf(status);
        isRead = readToEnd(descriptor, status.st_size, bytes);
    }
    ::close(descriptor);
    return isRead;
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
