// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "window/ActionTable.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>

namespace Sketchpad {

namespace {

constexpr ActionRow separator{ nullptr, nullptr, nullptr, false };

QString tr(const char *text)
{
    return QCoreApplication::translate("ActionTable", text);
}

QAction *makeAction(const ActionRow &row, QObject *owner)
{
    auto *action = new QAction(tr(row.text), owner);
    action->setObjectName(QLatin1String(row.name));
    action->setShortcut(QKeySequence(QLatin1String(row.shortcut)));
    action->setCheckable(row.isCheckable);
    return action;
}

} // namespace

const QVector<MenuRows> &actionTable()
{
    static const QVector<MenuRows> table{
        { QT_TRANSLATE_NOOP("ActionTable", "&File"),
            {
                { "fileNew", QT_TRANSLATE_NOOP("ActionTable", "&New"), "Ctrl+N", false },
                { "fileExport", QT_TRANSLATE_NOOP("ActionTable", "&Export to PNG..."), "Ctrl+E",
                    false },
                separator,
                { "fileQuit", QT_TRANSLATE_NOOP("ActionTable", "&Quit"), "Ctrl+Q", false },
            } },
        { QT_TRANSLATE_NOOP("ActionTable", "&Edit"),
            {
                { "editUndo", QT_TRANSLATE_NOOP("ActionTable", "&Undo"), "Ctrl+Z", false },
                { "editRedo", QT_TRANSLATE_NOOP("ActionTable", "&Redo"), "Ctrl+Shift+Z", false },
                separator,
                { "editDelete", QT_TRANSLATE_NOOP("ActionTable", "&Delete"), "Del", false },
                { "editSelectAll", QT_TRANSLATE_NOOP("ActionTable", "Select &All"), "Ctrl+A",
                    false },
            } },
        { QT_TRANSLATE_NOOP("ActionTable", "&Tools"),
            {
                { "toolSelect", QT_TRANSLATE_NOOP("ActionTable", "&Select"), "V", true },
                { "toolPen", QT_TRANSLATE_NOOP("ActionTable", "&Pen"), "P", true },
                { "toolLine", QT_TRANSLATE_NOOP("ActionTable", "&Line"), "L", true },
                { "toolRectangle", QT_TRANSLATE_NOOP("ActionTable", "&Rectangle"), "R", true },
                { "toolEllipse", QT_TRANSLATE_NOOP("ActionTable", "&Ellipse"), "E", true },
                { "toolText", QT_TRANSLATE_NOOP("ActionTable", "&Text"), "T", true },
                { "toolEraser", QT_TRANSLATE_NOOP("ActionTable", "Er&aser"), "X", true },
                { "toolFill", QT_TRANSLATE_NOOP("ActionTable", "&Fill"), "F", true },
                { "toolZoom", QT_TRANSLATE_NOOP("ActionTable", "&Zoom"), "Z", true },
            } },
        { QT_TRANSLATE_NOOP("ActionTable", "&Align"),
            {
                { "alignLeft", QT_TRANSLATE_NOOP("ActionTable", "&Left"), "Ctrl+Shift+L", false },
                { "alignCenter", QT_TRANSLATE_NOOP("ActionTable", "&Centers"), "Ctrl+Shift+C",
                    false },
                { "alignRight", QT_TRANSLATE_NOOP("ActionTable", "&Right"), "Ctrl+Shift+R", false },
                separator,
                { "alignTop", QT_TRANSLATE_NOOP("ActionTable", "&Top"), "Ctrl+Shift+T", false },
                { "alignMiddle", QT_TRANSLATE_NOOP("ActionTable", "&Middles"), "Ctrl+Shift+M",
                    false },
                { "alignBottom", QT_TRANSLATE_NOOP("ActionTable", "&Bottom"), "Ctrl+Shift+B",
                    false },
            } },
        { QT_TRANSLATE_NOOP("ActionTable", "&View"),
            {
                { "viewZoomIn", QT_TRANSLATE_NOOP("ActionTable", "Zoom &In"), "Ctrl++", false },
                { "viewZoomOut", QT_TRANSLATE_NOOP("ActionTable", "Zoom &Out"), "Ctrl+-", false },
                { "viewZoomFit", QT_TRANSLATE_NOOP("ActionTable", "Zoom to &Fit"), "Ctrl+0",
                    false },
                { "viewActualSize", QT_TRANSLATE_NOOP("ActionTable", "&Actual Size"), "Ctrl+1",
                    false },
                separator,
                { "viewDarkTheme", QT_TRANSLATE_NOOP("ActionTable", "&Dark Theme"), "Ctrl+D",
                    true },
                { "viewMessageLog", QT_TRANSLATE_NOOP("ActionTable", "&Message Log"), "Ctrl+M",
                    true },
            } },
        { QT_TRANSLATE_NOOP("ActionTable", "Hint &Language"),
            {
                { "languageEnglish", QT_TRANSLATE_NOOP("ActionTable", "&English"), "", true },
                { "languageGerman", QT_TRANSLATE_NOOP("ActionTable", "&German"), "", true },
            } },
        { QT_TRANSLATE_NOOP("ActionTable", "&Help"),
            {
                { "helpContents", QT_TRANSLATE_NOOP("ActionTable", "&Contents"), "F1", false },
            } },
    };
    return table;
}

void addMenus(QMenuBar *menuBar, QObject *owner)
{
    for (const MenuRows &menuRows : actionTable()) {
        QMenu *menu = menuBar->addMenu(tr(menuRows.title));
        for (const ActionRow &row : menuRows.rows) {
            if (row.name)
                menu->addAction(makeAction(row, owner));
            else
                menu->addSeparator();
        }
    }
}

} // namespace Sketchpad
