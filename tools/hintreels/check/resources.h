// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace Hintreels {

struct Element;

/// Whether an element shows a file of the package by its attribute `source`.
bool namesResource(const Element &element);

/// The directories in which the library looks for the resources that an element names.
QStringList resourceDirectories(const Element &element);

/// The file that the library finds for a resource; null where there is none.
QString findResource(const Element &element, const QString &name);

/// Whether the file that a resource's name leads to lies outside of all packages that the element
/// may use, be there such a file or not.
bool leavesPackage(const Element &element, const QString &name);

} // namespace Hintreels
