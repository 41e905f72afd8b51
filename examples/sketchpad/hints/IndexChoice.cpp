// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "hints/IndexChoice.h"

#include <Hintreels/HRContext>
#include <Hintreels/HRPackageIndex>
#include <Hintreels/HRSQLiteIndex>

using namespace Hintreels;

namespace Sketchpad {

QStringList indexNames()
{
    return { QStringLiteral("memory"), QStringLiteral("sqlite"), QStringLiteral("package") };
}

std::unique_ptr<HRIndex> makeIndex(
    const QString &name, HRContext &context, const QStringList &dataPaths)
{
    if (name == QLatin1String("package"))
        return std::make_unique<HRPackageIndex>(&context, dataPaths);
    if (name != QLatin1String("sqlite"))
        return nullptr;
    // This index does not know the packages by name, so that "search" in the content finds nothing.
    context.set(componentDirectoryKey, dataPaths.first() + QStringLiteral("/Standard.hintreels"));
    return std::make_unique<HRSQLiteIndex>(&context, dataPaths);
}

} // namespace Sketchpad
