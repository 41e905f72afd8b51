// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "files/HRPosixFile_p.h"

#include <QDir>
#include <QFile>
#include <QVarLengthArray>

#include <algorithm>
#include <cerrno>
#include <limits>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
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

std::optional<HRFileStamp> stampAt(const char *path)
{
    struct stat status;
    if (::stat(path, &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    return stampOf(status);
}

std::optional<HRFileStamp> stampOfOpen(int descriptor)
{
    struct stat status;
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    return stampOf(status);
}

bool isSameFile(const std::optional<HRFileStamp> &one, const HRFileStamp &other)
{
    return one && one->inode == other.inode && one->device == other.device;
}

// Long enough for most paths, which then need no memory of their own.
using AsciiPath = QVarLengthArray<char, 256>;

/// Appends text in ASCII, which the operating system spells as we do; false for any other.
bool append(AsciiPath &path, const QString &text)
{
    const QChar *characters = text.constData();
    const int length = path.size();
    path.resize(length + text.size());
    char *bytes = path.data() + length;
    ushort bits = 0;
    for (int i = 0; i < text.size(); ++i) {
        bits |= characters[i].unicode();
        bytes[i] = char(characters[i].unicode());
    }
    return bits < 0x80;
}

// Not blocking means that a named pipe, too, is opened at once, and then found out.
int openForReading(const char *path, int directory = AT_FDCWD)
{
    return ::openat(directory, path, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
}

/// Whether a file in a directory may be read. The kernel is only asked where the owner's permission
/// and that of everybody leave it open.
bool isReadable(int directory, const char *name, const struct stat &status)
{
    constexpr mode_t Everybody = S_IRUSR | S_IRGRP | S_IROTH;
    return (status.st_mode & Everybody) == Everybody || ::faccessat(directory, name, R_OK, 0) == 0;
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

bool endsWith(std::string_view name, const QByteArray &suffix)
{
    const size_t length = size_t(suffix.size());
    return name.size() >= length
        && qstrnicmp(name.data() + name.size() - length, suffix.constData(), uint(length)) == 0;
}

/// The text of a name as the directory lists it; null where no text stands for the name, since it
/// could not be opened by that.
QString textOf(std::string_view name)
{
    const bool isAscii
        = std::none_of(name.begin(), name.end(), [](char c) { return uchar(c) >= 0x80; });
    if (isAscii)
        return QLatin1String(name.data(), int(name.size()));
    const QByteArray native(name.data(), int(name.size()));
    const QString text = QFile::decodeName(native);
    return QFile::encodeName(text) == native ? text : QString();
}

/// A name in lower case, which most names are in as they are.
QString lowerCase(const QString &name)
{
    const bool isLowerCase = std::all_of(name.begin(), name.end(),
        [](QChar c) { return c.unicode() < 'A' || (c.unicode() > 'Z' && c.unicode() < 0x80); });
    return isLowerCase ? name : name.toLower();
}

/// As QDir sorts names by default.
void sortIgnoringCase(std::vector<HRListedFile> &files)
{
    struct Key
    {
        QStringView name; // in lower case
        size_t index;
    };
    std::vector<QString> names;
    std::vector<Key> keys;
    names.reserve(files.size());
    keys.reserve(files.size());
    for (const HRListedFile &file : files) {
        names.push_back(lowerCase(file.name));
        keys.push_back({ names.back(), keys.size() });
    }
    std::sort(keys.begin(), keys.end(), [&files](const Key &a, const Key &b) {
        const int order = a.name.compare(b.name);
        return order != 0 ? order < 0 : files[a.index].name < files[b.index].name;
    });
    std::vector<HRListedFile> sorted;
    sorted.reserve(files.size());
    for (const Key &key : keys)
        sorted.push_back(std::move(files[key.index]));
    files = std::move(sorted);
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
    const int descriptor = openForReading(QFile::encodeName(path).constData());
    if (descriptor < 0)
        return false;
    if (isRegular(descriptor)
        && file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return true;
    ::close(descriptor);
    return false;
}

bool readRegularFile(const QString &path, QByteArray &bytes)
{
    if (!path.startsWith(QLatin1Char(':'))) {
        HRRegularFile file(QFile::encodeName(path));
        return file.isOpen() && file.readAll(bytes);
    }
    QFile resource(path);
    if (!resource.open(QIODevice::ReadOnly))
        return false;
    bytes = resource.readAll();
    return true;
}

HRDirectoryListing::HRDirectoryListing(const QString &directory, const QByteArray &suffix)
{
    if (directory.startsWith(QLatin1Char(':'))) {
        const QStringList names
            = QDir(directory).entryList({ QLatin1String("*" + suffix) }, QDir::Files, QDir::NoSort);
        for (const QString &name : names)
            add(name, QFile::encodeName(name).constData());
        return;
    }
    m_directory = ::opendir(QFile::encodeName(directory).constData());
    if (!m_directory)
        return;
    m_descriptor = ::dirfd(m_directory);
    list(suffix);
    sortIgnoringCase(m_files);
}

HRDirectoryListing::~HRDirectoryListing()
{
    if (m_directory)
        ::closedir(m_directory);
}

std::optional<HRFileStamp> HRDirectoryListing::stampOfReadable(const HRListedFile &file) const
{
    const char *name = nativeName(file);
    struct stat status;
    if (::fstatat(m_descriptor, name, &status, AT_SYMLINK_NOFOLLOW) != 0 || !S_ISREG(status.st_mode)
        || !isReadable(m_descriptor, name, status))
        return std::nullopt;
    return stampOf(status);
}

void HRDirectoryListing::list(const QByteArray &suffix)
{
    while (const struct dirent *entry = ::readdir(m_directory)) {
        const std::string_view name(entry->d_name);
        if (name[0] == '.' || !endsWith(name, suffix) || !isRegularEntry(m_descriptor, *entry))
            continue;
        const QString text = textOf(name);
        if (!text.isNull())
            add(text, entry->d_name);
    }
}

void HRDirectoryListing::add(const QString &name, const char *nativeName)
{
    m_files.push_back({ name, m_nativeNames.size() });
    m_nativeNames.append(nativeName).append('\0');
}

HRRegularFile::HRRegularFile(const QByteArray &path)
{
    take(openForReading(path.constData()));
}

HRRegularFile::HRRegularFile(const HRDirectoryListing &listing, const HRListedFile &file)
{
    take(openForReading(listing.nativeName(file), listing.m_descriptor));
}

void HRRegularFile::take(int descriptor)
{
    if (descriptor < 0)
        return;
    struct stat status;
    if (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode)) {
        m_stamp = stampOf(status);
        m_descriptor = descriptor;
    } else {
        ::close(descriptor);
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

std::optional<HRFileStamp> stampOfFile(const QByteArray &path)
{
    return stampAt(path.constData());
}

std::optional<HRFileStamp> stampOfFile(const QString &directory, const QString &name)
{
    AsciiPath path;
    if (!append(path, directory) || !append(path, name))
        return stampOfFile(QFile::encodeName(directory + name));
    path.append('\0');
    return stampAt(path.constData());
}

HRDoomedFile::HRDoomedFile(const QString &path, const HRFileStamp &stamp)
    : m_path(QFile::encodeName(path))
    , m_descriptor(openForReading(m_path.constData()))
{
    if (isSameFile(stampOfOpen(m_descriptor), stamp))
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
    const std::optional<HRFileStamp> stamp = stampOfOpen(m_descriptor);
    if (stamp && isSameFile(stampAt(m_path.constData()), *stamp))
        ::unlink(m_path.constData());
    ::flock(m_descriptor, LOCK_UN);
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
