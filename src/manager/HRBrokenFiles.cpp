// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRBrokenFiles_p.h"

#include <QFile>

#include <utility>

namespace Hintreels {

HRBrokenFiles::HRBrokenFiles(Report report)
    : m_report(std::move(report))
{
}

void HRBrokenFiles::tell(const HRControlErrors &errors)
{
    for (auto it = errors.cbegin(); it != errors.cend(); ++it) {
        if (isNew(it.key()))
            m_report(QStringLiteral("%1:%2: cannot read hints: %3")
                         .arg(it.key(), QString::number(it->line), it->text));
    }
}

/// A Qt resource has no stamp, and never changes.
bool HRBrokenFiles::isNew(const QString &path)
{
    const HRFileStamp stamp = stampOfFile(QFile::encodeName(path)).value_or(HRFileStamp());
    const auto told = m_told.constFind(path);
    if (told != m_told.constEnd() && *told == stamp)
        return false;
    m_told.insert(path, stamp);
    return true;
}

} // namespace Hintreels
