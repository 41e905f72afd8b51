// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QVector>

QT_BEGIN_NAMESPACE
class QAction;
class QMenuBar;
class QObject;
QT_END_NAMESPACE

namespace Sketchpad {

/// One action: its object name is also the name of its icon and the key of its hint.
struct ActionRow
{
    const char *name = nullptr; ///< null for a separator
    const char *text = nullptr; ///< as it stands in the menu
    const char *shortcut = nullptr;
    bool isCheckable = false;
};

struct MenuRows
{
    const char *title;
    QVector<ActionRow> rows;
};

/// All menus with all actions, in their order.
const QVector<MenuRows> &actionTable();

/// Makes the actions as children of @p owner, and the menus that show them.
void addMenus(QMenuBar *menuBar, QObject *owner);

} // namespace Sketchpad
