// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "files/posix_p.h"

#include <sys/stat.h>

namespace Hintreels {

namespace {

qint64 nanoseconds(const struct timespec &time)
{
    return qint64(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

} // namespace

// Not blocking means that a named pipe, too, is opened at once, and then found out.
int openForReading(const char *path, int directory)
{
    return ::openat(directory, path, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
}

HRFileStamp stampOf(const struct stat &status)
{
    return { status.st_dev, status.st_ino, status.st_size, nanoseconds(status.st_mtim),
        nanoseconds(status.st_ctim) };
}

std::optional<HRFileStamp> stampOfDescriptor(int descriptor)
{
    struct stat status;
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    return stampOf(status);
}

std::optional<HRFileStamp> stampAt(const char *path)
{
    struct stat status;
    if (::stat(path, &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    return stampOf(status);
}

} // namespace Hintreels
