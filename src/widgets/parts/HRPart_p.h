// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAction>
#include <QPointer>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QWidget>

namespace Hintreels {

/// What a hint can belong to: a widget, or an entry, a tab, a section, a cell or the title of one.
struct HRPart
{
    /// The whole of a widget, or an area of it, in its own coordinates.
    explicit HRPart(QWidget *whole, const QRect &inside = {});

    /// Gives it the key or the name that an object carries, after those that it has already.
    void goesBy(const QObject *object);

    /// Takes name, text and shortcut from an action; null does nothing.
    void does(QAction *action);

    /// Whether nothing tells it from others.
    bool isNameless() const { return key.isEmpty() && names.isEmpty(); }

    /// The shortcut as the reader types it now; empty where there is none.
    QString shortcut() const;

    QPointer<QWidget> widget;
    QRect area; ///< in global coordinates; null for the whole widget
    QString key; ///< the host's own, which wins; else empty
    QStringList names; ///< from special to general
    QPointer<QAction> action; ///< may be null
    QString text; ///< what the host calls it, without mnemonic
    bool showsText = false; ///< so that a hint need not say it again
    bool showsShortcut = false; ///< the same for the shortcut
};

/// The global coordinates of a widget's area.
QRect globalArea(const QWidget *widget, const QRect &area);

} // namespace Hintreels
