// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "index/database/HRDirectoryDigest_p.h"

#include <QString>

/// What is kept of a control file with one key.
inline Hintreels::HRStoredFile fileWithKey(quint32 key, qint64 size = 10)
{
    Hintreels::HRStoredFile file;
    file.stamp = { 0, 1, size, 3, 4 };
    file.isControlFile = true;
    file.digest.keys = { key };
    return file;
}

/// The bytes of a directory with one such file.
inline QByteArray digestOf(const char *name, quint32 key)
{
    Hintreels::HRDirectoryDigest digest;
    digest.put(name, fileWithKey(key));
    return digest.encoded();
}
