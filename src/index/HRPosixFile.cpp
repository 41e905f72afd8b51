// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "index/HRPosixFile_p.h"

#include <QFile>

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

} // namespace Hintreels
