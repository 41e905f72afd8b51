// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRect>

QT_BEGIN_NAMESPACE
class QObject;
QT_END_NAMESPACE

namespace Hintreels {

class HRWidget;

/// Whether an object is a window or a widget of the host: input comes to these first, and to the
/// items in a scene afterwards.
bool isOfHost(const HRWidget &popup, const QObject &object);

/// What a popup covers of the screen, in global coordinates.
QRect areaOnScreen(const HRWidget &popup);

} // namespace Hintreels
