// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "files/HRFileStamp_p.h"
#include "index/control/HRControlError_p.h"

#include <QHash>
#include <QString>

#include <functional>

namespace Hintreels {

/// Tells of control files that are not XML, once for each change of a file.
///
/// GUI thread only.
class HRBrokenFiles
{
public:
    using Report = std::function<void(const QString &warning)>;

    explicit HRBrokenFiles(Report report);

    void tell(const HRControlErrors &errors);

private:
    bool isNew(const QString &path);

    Report m_report;
    QHash<QString, HRFileStamp> m_told; // as the files were then
};

} // namespace Hintreels
