// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "window/Theme.h"

#include <QString>

QT_BEGIN_NAMESPACE
class QCoreApplication;
QT_END_NAMESPACE

namespace Sketchpad {

/// What the command line asks for.
struct Options
{
    Theme theme = Theme::Light;
    QString locale;
    QString index;
    QString geometryFile;
};

/// Ends the program with a message where the command line is wrong or asks for help.
Options readOptions(const QCoreApplication &application);

} // namespace Sketchpad
