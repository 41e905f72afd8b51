// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "window/ActionTable.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace Sketchpad {

namespace {

constexpr ActionRow separator{};

const QVector<MenuRows> table{
    { "&File",
        {
            { "fileNew", "&New", "Ctrl+N" },
            { "fileExport", "&Export to PNG...", "Ctrl+E" },
            separator,
            { "fileQuit", "&Quit", "Ctrl+Q" },
        } },
    { "&Edit",
        {
            { "editUndo", "&Undo", "Ctrl+Z" },
            { "editRedo", "&Redo", "Ctrl+Shift+Z" },
            separator,
            { "editDelete", "&Delete", "Del" },
            { "editSelectAll", "Select &All", "Ctrl+A" },
        } },
    { "&Tools",
        {
            { "toolSelect", "&Select", "V", true },
            { "toolPen", "&Pen", "P", true },
            { "toolLine", "&Line", "L", true },
            { "toolRectangle", "&Rectangle", "R", true },
            { "toolEllipse", "&Ellipse", "E", true },
            { "toolText", "&Text", "T", true },
            { "toolEraser", "Er&aser", "X", true },
            { "toolFill", "&Fill", "F", true },
            { "toolZoom", "&Zoom", "Z", true },
        } },
    { "&Align",
        {
            { "alignLeft", "&Left", "Ctrl+Shift+L" },
            { "alignCenter", "&Centers", "Ctrl+Shift+C" },
            { "alignRight", "&Right", "Ctrl+Shift+R" },
            separator,
            { "alignTop", "&Top", "Ctrl+Shift+T" },
            { "alignMiddle", "&Middles", "Ctrl+Shift+M" },
            { "alignBottom", "&Bottom", "Ctrl+Shift+B" },
        } },
    { "&View",
        {
            { "viewZoomIn", "Zoom &In", "Ctrl++" },
            { "viewZoomOut", "Zoom &Out", "Ctrl+-" },
            { "viewZoomFit", "Zoom to &Fit", "Ctrl+0" },
            { "viewActualSize", "&Actual Size", "Ctrl+1" },
            separator,
            { "viewDarkTheme", "&Dark Theme", "Ctrl+D", true },
            { "viewMessageLog", "&Message Log", "Ctrl+M", true },
        } },
    { "Hint &Language",
        {
            { "languageEnglish", "&English", "", true },
            { "languageGerman", "&German", "", true },
        } },
    { "&Help",
        {
            { "helpContents", "&Contents", "F1" },
            { "helpHints", "&Hints...", "" },
        } },
};

QAction *makeAction(const ActionRow &row, QObject *owner)
{
    auto *action = new QAction(QLatin1String(row.text), owner);
    action->setObjectName(QLatin1String(row.name));
    action->setShortcut(QKeySequence(QLatin1String(row.shortcut)));
    action->setCheckable(row.isCheckable);
    return action;
}

} // namespace

const QVector<MenuRows> &actionTable()
{
    return table;
}

void addMenus(QMenuBar *menuBar, QObject *owner)
{
    for (const MenuRows &menuRows : table) {
        QMenu *menu = menuBar->addMenu(QLatin1String(menuRows.title));
        for (const ActionRow &row : menuRows.rows) {
            if (row.name)
                menu->addAction(makeAction(row, owner));
            else
                menu->addSeparator();
        }
    }
}

} // namespace Sketchpad
