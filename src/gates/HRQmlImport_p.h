// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVector>

namespace Hintreels {

/// A module that a file imports.
struct HRQmlImport
{
    QString module; ///< such as "QtQuick.Window"
    int major = 0; ///< 0 where no version is named
};

/// The modules that a QML file or a script imports at its head. Directories and files that it
/// imports are left out: those are asked for one by one.
QVector<HRQmlImport> importsOfQml(const QString &text);

/// The modules that a qmldir file brings along.
QVector<HRQmlImport> importsOfQmldir(const QString &text);

/// Whether a qmldir file has a library loaded, which no gate could hold.
bool loadsPlugin(const QString &qmldir);

/// The module in a directory below an import path: "QtQuick/Controls.2/Material" is version 2 of
/// "QtQuick.Controls.Material".
HRQmlImport moduleInDirectory(const QString &relativePath);

} // namespace Hintreels
