// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

class QLocale;

namespace Hintreels {

struct HRControlRecord;

/// Passes over control files that cannot hold a key, at the cost of a `stat` for each.
///
/// A file is read again when its stamp has changed, and each time while the stamp could hide an
/// edit. Nothing is answered from a reading that may be older than the file.
class HRControlReader
{
public:
    /// Whether a file may serve a key, as keyNumber() gives it, to a locale.
    bool mayServe(HRControlRecord &record, quint32 key, const QLocale &locale);

    /// Takes a new reading; false where the file is none or cannot be read.
    bool read(HRControlRecord &record);

private:
    bool isCurrent(HRControlRecord &record);

    QByteArray m_bytes;
};

} // namespace Hintreels
