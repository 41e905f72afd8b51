// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "content/HRContent_p.h"
#include "index/control/HRControlError_p.h"

#include <QLocale>
#include <QString>

#include <functional>
#include <optional>

class HRContext;

namespace Hintreels {

class HRIndex;

/// The content found for a key.
struct HRFoundContent
{
    HRContent content; ///< with an entry in it
    bool hasRoot = false; ///< whether the index has named one; what has none is not shown
    QString path; ///< directory of the control file
    int depth = 0; ///< levels from the package directory down to the control file

    /// The package directory, canonical; a control file directly in it has the depth 1.
    QString packageDirectory() const;
};

/// Looks content up, first for the primary locale, then for the fallback locale.
///
/// What it borrows must outlive it. GUI thread only.
class HRContentLookup
{
public:
    using Report = std::function<void(const QString &progress)>;

    /// Told of the files that a look-up has found to be no XML, at its end.
    using ReportErrors = std::function<void(const HRControlErrors &errors)>;

    HRContentLookup(
        const HRContext &context, HRIndex &index, Report report, ReportErrors reportErrors);

    /// A key's element in the first locale that has it; reports how long that took.
    ///
    /// The rest is the index's: what it has written stays, on a miss too, and nothing else is.
    HRXmlElement *retrieve(
        const QString &key, QString &path, int &depth, HRXmlElement *&root) const;

    /// The same with an owner; nothing on a miss, whatever the index has written.
    std::optional<HRFoundContent> find(const QString &key) const;

    /// The fallback key's content, which is looked for in the fallback locale only.
    std::optional<HRFoundContent> findFallback() const;

    /// The key to show where another has no content; null where the host sets none.
    QString fallbackKey() const;

private:
    QLocale fallbackLocale() const;
    void tellErrors() const;

    const HRContext &m_context;
    HRIndex &m_index;
    Report m_report;
    ReportErrors m_reportErrors;
};

} // namespace Hintreels
