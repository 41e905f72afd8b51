// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace Hintreels {

class Report;
class Shelf;

/// Holds all rules against a package: its files are read one after the other, once each.
void checkPackage(const QString &path, const Shelf &shelf, Report &report);

} // namespace Hintreels
