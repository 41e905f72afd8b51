// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "files/HRDirectoryListing_p.h"

#include "files/posix_p.h"

#include <QDir>
#include <QFile>
#include <QStringList>

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Hintreels {

namespace {

/// Whether a file in a directory may be read. The kernel is only asked where the owner's permission
/// and that of everybody leave it open.
bool isReadable(int directory, const char *name, const struct stat &status)
{
    constexpr mode_t everybody = S_IRUSR | S_IRGRP | S_IROTH;
    return (status.st_mode & everybody) == everybody || ::faccessat(directory, name, R_OK, 0) == 0;
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
    const auto length = size_t(suffix.size());
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

} // namespace

HRDirectoryListing::HRDirectoryListing(const QString &directory, const QByteArray &suffix)
    : m_path(directory)
{
    if (directory.startsWith(u':')) {
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

void HRDirectoryListing::keepFirst(size_t count)
{
    if (count < m_files.size())
        m_files.erase(m_files.begin() + std::ptrdiff_t(count), m_files.end());
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
    m_files.push_back({ name, int(m_nativeNames.size()) });
    m_nativeNames.append(nativeName).append('\0');
}

} // namespace Hintreels
