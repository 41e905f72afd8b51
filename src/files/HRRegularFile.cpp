// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "files/HRRegularFile_p.h"

#include "files/HRDirectoryListing_p.h"
#include "files/posix_p.h"

#include <QByteArray>
#include <QFile>

#include <cerrno>
#include <limits>
#include <optional>

#include <unistd.h>

namespace Hintreels {

HRRegularFile::HRRegularFile(const QByteArray &path)
{
    take(openForReading(path.constData()));
}

HRRegularFile::HRRegularFile(const HRDirectoryListing &listing, const HRListedFile &file)
{
    take(openForReading(listing.nativeName(file), listing.descriptor()));
}

void HRRegularFile::take(int descriptor)
{
    if (descriptor < 0)
        return;
    if (const std::optional<HRFileStamp> stamp = stampOfDescriptor(descriptor)) {
        m_stamp = *stamp;
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
    constexpr qint64 largestFile = std::numeric_limits<int>::max() / 4;
    if (m_stamp.size > largestFile)
        return false;
    bytes.resize(int(m_stamp.size) + 1); // one more, to meet the end without another round
    int length = 0;
    qint64 got = 0;
    while ((got = read(bytes.data() + length, bytes.size() - length)) > 0) {
        length += int(got);
        if (length > largestFile)
            return false;
        if (length == bytes.size())
            bytes.resize(2 * length); // the file is growing
    }
    bytes.resize(length);
    return got == 0;
}

bool openRegularFile(QFile &file, const QString &path)
{
    if (path.startsWith(u':')) {
        file.setFileName(path);
        return file.open(QIODevice::ReadOnly);
    }
    const int descriptor = openForReading(QFile::encodeName(path).constData());
    if (descriptor < 0)
        return false;
    if (stampOfDescriptor(descriptor)
        && file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return true;
    ::close(descriptor);
    return false;
}

bool readRegularFile(const QString &path, QByteArray &bytes)
{
    if (!path.startsWith(u':')) {
        HRRegularFile file(QFile::encodeName(path));
        return file.isOpen() && file.readAll(bytes);
    }
    QFile resource(path);
    if (!resource.open(QIODevice::ReadOnly))
        return false;
    bytes = resource.readAll();
    return true;
}

} // namespace Hintreels
