// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/HRPosixFile_p.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <limits>
#include <utility>
#include <vector>

#include <dirent.h>
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

std::optional<HRFileStamp> stampAt(int directory, const char *path)
{
    struct stat status;
    if (::fstatat(directory, path, &status, 0) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    return stampOf(status);
}

// Not blocking means that a named pipe, too, is opened at once, and then found out.
int openForReading(const QByteArray &path)
{
    return ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
}

/// Whether a directory's entry is a regular file and no link, without a look at it where the
/// directory itself tells.
bool isRegularEntry(int directory, const struct dirent &entry)
{
    if (entry.d_type != DT_UNKNOWN)
        return entry.d_type == DT_REG;
    struct stat status;
    return ::fstatat(directory, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) == 0
        && S_ISREG(status.st_mode);
}

/// As QDir sorts names by default.
void sortIgnoringCase(QStringList &names)
{
    std::vector<std::pair<QString, QString>> keyed; // the name in lower case, and as it is
    keyed.reserve(size_t(names.size()));
    for (const QString &name : qAsConst(names))
        keyed.emplace_back(name.toLower(), name);
    std::sort(keyed.begin(), keyed.end());
    std::transform(keyed.begin(), keyed.end(), names.begin(),
        [](const std::pair<QString, QString> &pair) { return pair.second; });
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

HRRegularFile::HRRegularFile(const QByteArray &path)
    : m_descriptor(openForReading(path))
{
    struct stat status;
    if (m_descriptor >= 0 && ::fstat(m_descriptor, &status) == 0 && S_ISREG(status.st_mode)) {
        m_stamp = stampOf(status);
    } else if (m_descriptor >= 0) {
        ::close(m_descriptor);
        m_descriptor = -1;
    }
}

HRRegularFile::~HRRegularFile()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

qint64 HRRegularFile::read(char *buffer, qint64 size)
{
    ssize_t got = 0;
    do
        got = ::read(m_descriptor, buffer, size_t(size));
    while (got < 0 && errno == EINTR);
    return got;
}

bool HRRegularFile::readAll(QByteArray &bytes)
{
    constexpr qint64 LargestFile = std::numeric_limits<int>::max() / 4;
    if (m_stamp.size > LargestFile)
        return false;
    bytes.resize(int(m_stamp.size) + 1); // one more, to meet the end without another round
    int length = 0;
    qint64 got = 0;
    while ((got = read(bytes.data() + length, bytes.size() - length)) > 0) {
        length += int(got);
        if (length > LargestFile)
            return false;
        if (length == bytes.size())
            bytes.resize(2 * length); // the file is growing
    }
    bytes.resize(length);
    return got == 0;
}

QStringList readableFileNames(const QString &directory, const QString &suffix)
{
    if (directory.startsWith(QLatin1Char(':')))
        return QDir(directory).entryList({ QLatin1Char('*') + suffix }, QDir::Files, QDir::NoSort);
    QStringList names;
    DIR *listing = ::opendir(QFile::encodeName(directory).constData());
    if (!listing)
        return names;
    const int descriptor = ::dirfd(listing);
    while (const struct dirent *entry = ::readdir(listing)) {
        if (entry->d_name[0] == '.' || !isRegularEntry(descriptor, *entry))
            continue;
        const QString name = QFile::decodeName(entry->d_name);
        // A name that no text stands for could not be opened by it.
        if (name.endsWith(suffix, Qt::CaseInsensitive) && QFile::encodeName(name) == entry->d_name
            && ::faccessat(descriptor, entry->d_name, R_OK, 0) == 0)
            names.append(name);
    }
    ::closedir(listing);
    sortIgnoringCase(names);
    return names;
}

std::optional<HRFileStamp> stampOfFile(const QByteArray &path)
{
    return stampAt(AT_FDCWD, path.constData());
}

HRDirectoryHandle::HRDirectoryHandle(const QByteArray &path)
    : m_descriptor(::open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
}

HRDirectoryHandle::~HRDirectoryHandle()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

std::optional<HRFileStamp> HRDirectoryHandle::stampOfFile(const char *name) const
{
    return m_descriptor >= 0 ? stampAt(m_descriptor, name) : std::nullopt;
}

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
