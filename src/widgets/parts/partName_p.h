// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QObject;
QT_END_NAMESPACE

namespace Hintreels {

/// The key that a host has given an object, as the dynamic property `hintreelKey`; else empty.
QString keyOf(const QObject *object);

/// The name that a host has given an object; empty also for names of Qt's own, such as `qt_edit`.
QString nameOf(const QObject *object);

/// A text of a menu or a button as it is read: without mnemonic, and without the dots that promise
/// a dialog.
QString withoutMnemonic(const QString &text);

} // namespace Hintreels
