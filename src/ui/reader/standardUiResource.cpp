// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/standardUiResource_p.h"

#include <QDir>

// Q_INIT_RESOURCE wants to stand outside of any namespace.
static void registerStandardUi()
{
    Q_INIT_RESOURCE(hintreels_standard_ui);
}

namespace Hintreels {

QString standardUiResource(const QString &path)
{
    registerStandardUi(); // a program that links the library statically would leave it out
    return QStringLiteral(":/hintreels/standard/") + path;
}

} // namespace Hintreels
