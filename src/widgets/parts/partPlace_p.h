// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>
#include <QVector>

class QWidget;

namespace Hintreels {

struct HRPart;

/// Whether a widget is a place that parts lie in: a window, a page of several, or a dock.
bool isPlace(const QWidget *widget);

/// The keys under which a part's content may be found: the host's own, then each of its names,
/// first with the names of all the places that it lies in, in the end alone.
///
/// `PreferencesDialog/fontTab/size`, `fontTab/size`, `size`.
QStringList keysOf(const HRPart &part);

/// The same for the places that a part lies in, from the innermost one.
QStringList keysAround(const HRPart &part);

} // namespace Hintreels
