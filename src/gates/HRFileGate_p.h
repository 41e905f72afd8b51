// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gates/HRFileUse_p.h"
#include "gates/HRPackageRules_p.h"

#include <QMutex>
#include <QString>
#include <QStringList>

#include <functional>

namespace Hintreels {

/// Told of a file that is refused, and for what it was wanted, such as "script".
using HRRefuse = std::function<void(const QString &kind, const QString &path)>;

/// Where a scene's files may lie.
struct HRReach
{
    HRPackageRules rules;
    QStringList packages; ///< directories; those of the content, and the UI's own
    QStringList importPaths; ///< directories of installed QML modules
};

/// Whether a path lies in one of the directories. What would be opened counts, links followed.
bool isInside(const QString &path, const QStringList &directories);

/// Decides which files a scene may open. It opens nothing but what has to be looked into.
///
/// Where packages are not kept to their own files, it allows every file. A file that does not exist
/// is allowed, too: whoever opens it finds nothing. Thread-safe: the GUI thread says what is
/// reached, and the threads of the QML engine ask.
class HRFileGate
{
public:
    void setReach(const HRReach &reach);
    HRPackageRules rules() const;

    bool mayOpen(const QString &path, HRFileUse use) const;

    /// A QML file or a script: where it lies, and what it imports.
    /// @param refused receives the module, where it is one that is refused
    bool mayRun(const QString &path, QString &refused) const;

    /// A directory's qmldir file, also one of an installed module.
    bool mayImport(const QString &path, QString &refused) const;

private:
    HRReach reach() const;

    mutable QMutex m_mutex;
    HRReach m_reach; // guarded by m_mutex
};

} // namespace Hintreels
