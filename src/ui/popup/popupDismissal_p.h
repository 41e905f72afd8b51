// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QEvent;
class QObject;
QT_END_NAMESPACE

namespace Hintreels {

class HRWidget;

/// Whether a key, of Qt::Key, does nothing but change others.
bool isModifier(int key);

/// Whether an event that somebody gets takes native tool tips away, and with them a popup.
///
/// That is a key in the host, but not a modifier alone; the wheel or a drag over the host; a window
/// around the reference widget that moves; a menu or list that opens, or one that closes, unless
/// the hint belongs to a menu that stays open; and a reference widget that is hidden.
bool takesAway(const HRWidget &popup, const QObject &watched, const QEvent &event);

} // namespace Hintreels
