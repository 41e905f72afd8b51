// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

namespace Hintreels {

/// How many directory levels a file lies below a package directory: 1 for a file directly in it.
///
/// Goes up from the file, following no links but comparing canonical paths, so that a link back to
/// the package on the way counts as the package. Nothing where the path does not begin with the
/// package's path, character by character, or where the way up meets no such directory.
std::optional<int> levelsBelowPackage(const QString &filePath, const QString &packagePath);

/// Counts the same for the files of a scan, which come directory by directory: the way up is gone
/// once for each.
class HRPackageDepth
{
public:
    /// @param isCanonical whether both paths are known to be; nothing has to be looked at then
    std::optional<int> levels(
        const QString &filePath, const QString &packagePath, bool isCanonical = false);

    /// That of the file last found below its package, with its slash.
    const QString &directory() const { return m_directory; }

private:
    QString m_directory;
    QString m_package;
    int m_levels = 0;
};

} // namespace Hintreels
