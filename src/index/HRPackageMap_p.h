// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

namespace Hintreels {

/// Name of the innermost directory at or above @p path whose suffix is @p suffix, without that
/// suffix; empty where there is none. `Tools` for `/data/Tools.hintreels/Control/pen.xml`.
QString packageNameOf(const QString &path, const QString &suffix);

/// Which directories hold the packages of a name, and where components may lie in them.
class HRPackageMap
{
public:
    /// Adds a directory at the end of the name's list, unless it is there.
    void add(const QString &name, const QString &packagePath);

    /// The name's directories in the order in which they were added.
    QStringList paths(const QString &name) const { return m_paths.value(name); }

    /// The directories of every name in @p search, which commas, semicolons and white space
    /// separate; unknown names are passed over.
    QStringList pathsOfSearchList(const QString &search) const;

private:
    QMap<QString, QStringList> m_paths;
};

} // namespace Hintreels
