// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "index/control/HRControlError_p.h"

#include <QByteArray>

#include <functional>
#include <utility>

class QLocale;
class QString;

namespace Hintreels {

struct HRControlRecord;

/// Passes over control files that cannot hold a key, at the cost of a `stat` for each.
///
/// A file is read again when its stamp has changed, and each time while the stamp could hide an
/// edit. Nothing is answered from a digest that may be older than the file.
class HRControlPrefilter
{
public:
    /// Whether a file of a size in bytes may be read; asked before each reading.
    using Judge = std::function<bool(const QString &path, qint64 size)>;

    /// @param errors of files that are parsed; must outlive this
    explicit HRControlPrefilter(HRControlErrors &errors)
        : m_errors(errors)
    {
    }

    /// Until then, every file may be read.
    void setJudge(Judge judge) { m_judge = std::move(judge); }

    /// Whether a file may be read as it is now; a Qt resource always may.
    bool mayRead(const QString &path) const;

    /// Whether a file may serve a key, as keyNumber() gives it, to a locale.
    bool mayServe(HRControlRecord &record, quint32 key, const QLocale &locale);

    /// Digests the file anew; false where the file is none or cannot be read.
    bool read(HRControlRecord &record);

private:
    bool isCurrent(HRControlRecord &record);

    HRControlErrors &m_errors;
    QByteArray m_bytes;
    Judge m_judge = [](const QString &, qint64) { return true; };
};

} // namespace Hintreels
