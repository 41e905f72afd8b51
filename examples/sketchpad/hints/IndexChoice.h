// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

#include <memory>

class HRContext;

namespace Hintreels {
class HRIndex;
}

namespace Sketchpad {

/// The names of the indexes to choose from, the library's own choice first.
QStringList indexNames();

/// Makes the index of this name, and sets what it needs in the context.
///
/// @param name one of indexNames()
/// @param context must outlive the index
/// @param dataPaths the first one holds the package Standard
/// @return null for "memory", which is what the library takes when it is given none
std::unique_ptr<Hintreels::HRIndex> makeIndex(
    const QString &name, HRContext &context, const QStringList &dataPaths);

} // namespace Sketchpad
