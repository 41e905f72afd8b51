// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

class HRContext;

namespace Hintreels {

/// What the settings let packages do.
struct HRPackageRules
{
    bool network = false; ///< reach other machines
    bool ownFilesOnly = false; ///< open what lies in packages, and import listed modules, only
    bool fromStrangers = false; ///< have no QML, and media of few formats; own files only, too
    QStringList modules; ///< that QML may import beside the usual ones
};

HRPackageRules packageRules(const HRContext &context);

/// Whether QML that keeps to its own files may import a module.
/// @param major its major version, or 0 where none is named
bool isModuleAllowed(const QString &module, int major, const QStringList &furtherModules);

} // namespace Hintreels
