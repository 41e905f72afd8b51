// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/PartsWindow.h"

#include "widgets/HRWidgetsInterface.h"

#include <QGraphicsRectItem>
#include <QLineEdit>
#include <QMdiSubWindow>

#include <QtTest>

using namespace Hintreels;

namespace {

Spot middleOf(QWidget *widget)
{
    return { widget, widget->rect().center() };
}

Spot middleOf(QWidget *widget, const QRect &area)
{
    return { widget, area.center(), area };
}

QToolButton *buttonOf(const QToolBar *bar, QAction *action)
{
    return qobject_cast<QToolButton *>(bar->widgetForAction(action));
}

QMenu *opened(QMenu *menu)
{
    menu->popup(menu->parentWidget()->mapToGlobal(QPoint(40, 40)));
    return menu;
}

Spot entry(QMenu *menu, QAction *action)
{
    return middleOf(opened(menu), menu->actionGeometry(action));
}

Spot section(const QHeaderView *header, int index)
{
    QWidget *viewport = header->viewport();
    const QPoint start(header->sectionViewportPosition(index), 0);
    return middleOf(viewport, { start, QSize(header->sectionSize(index), viewport->height()) });
}

Spot cell(const QAbstractItemView *view, int row, int column)
{
    const QRect area = view->visualRect(view->model()->index(row, column));
    return middleOf(view->viewport(), area & view->viewport()->rect());
}

Spot listItem(QComboBox *box, int row)
{
    box->showPopup();
    if (!QTest::qWaitForWindowExposed(box->view()->window()))
        qFatal("the list is not shown");
    return cell(box->view(), row, 0);
}

// The inner widget of a widget, which stands for all of it.
Spot pieceOf(QWidget *widget, const QWidget *piece)
{
    return { widget, piece->geometry().center(), widget->rect() };
}

Spot titleOf(QWidget *widget, const QWidget *content)
{
    return middleOf(widget, QRect(0, 0, widget->width(), content->y()));
}

QWidget *buttonOf(const QToolBox *box, const QString &title)
{
    const auto buttons
        = box->findChildren<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly);
    for (QAbstractButton *button : buttons) {
        if (button->text() == title)
            return button;
    }
    qFatal("the tool box has no such page");
}

Spot tabOf(QMdiArea *area)
{
    area->setViewMode(QMdiArea::TabbedView);
    auto *bar = area->findChild<QTabBar *>();
    return middleOf(bar, bar->tabRect(0));
}

Spot square(const PartsWindow &window)
{
    const QRect area
        = window.ui.canvas->mapFromScene(window.scene.items().first()->sceneBoundingRect())
              .boundingRect();
    return middleOf(window.ui.canvas->viewport(), area);
}

const QVector<PartCase> cases{
    { "tool button of an action",
        [](PartsWindow &w) { return middleOf(buttonOf(w.ui.toolBar, w.ui.fileOpen)); },
        { "PartsWindow/fileOpen", "fileOpen" } },
    { "tool button of an action with a key",
        [](PartsWindow &w) { return middleOf(buttonOf(w.ui.toolBar, w.ui.editFind)); },
        { "finder", "PartsWindow/editFind", "editFind" } },
    { "tool button with a name", [](PartsWindow &w) { return middleOf(w.ui.style); },
        { "PartsWindow/style", "style" } },
    { "entry of a menu", [](PartsWindow &w) { return entry(w.ui.menuFile, w.ui.fileQuit); },
        { "PartsWindow/fileQuit", "fileQuit" } },
    { "entry that opens a menu",
        [](PartsWindow &w) { return entry(w.ui.menuFile, w.ui.menuRecent->menuAction()); },
        { "PartsWindow/menuRecent", "menuRecent" } },
    { "entry of a menu in a menu",
        [](PartsWindow &w) { return entry(w.ui.menuRecent, w.ui.recentClear); },
        { "PartsWindow/recentClear", "recentClear" } },
    { "entry of a menu bar",
        [](PartsWindow &w) {
            return middleOf(
                w.ui.menubar, w.ui.menubar->actionGeometry(w.ui.menuFile->menuAction()));
        },
        { "PartsWindow/menuFile", "menuFile" } },
    { "tab by its page",
        [](PartsWindow &w) {
            return middleOf(w.ui.tabs->tabBar(), w.ui.tabs->tabBar()->tabRect(1));
        },
        { "PartsWindow/colorTab", "colorTab" } },
    { "tab by its data",
        [](PartsWindow &w) {
            w.ui.tabs->tabBar()->setTabData(0, "fonts");
            return middleOf(w.ui.tabs->tabBar(), w.ui.tabs->tabBar()->tabRect(0));
        },
        { "PartsWindow/fonts", "fonts", "PartsWindow/fontTab", "fontTab" } },
    { "tab of a sub-window", [](PartsWindow &w) { return tabOf(w.ui.documents); },
        { "PartsWindow/drawing", "drawing" } },
    { "page of a tool box",
        [](PartsWindow &w) { return middleOf(buttonOf(w.ui.drawers, "&Stamps")); },
        { "PartsWindow/stamps", "stamps" } },
    { "button on a page of a tool box", [](PartsWindow &w) { return middleOf(w.ui.tip); },
        { "PartsWindow/brushes/tip", "brushes/tip", "tip" } },
    { "section of a header",
        [](PartsWindow &w) { return section(w.ui.people->horizontalHeader(), 1); },
        { "PartsWindow/people/Age", "people/Age", "PartsWindow/people/column2",
            "people/column2" } },
    { "section of a header with a key",
        [](PartsWindow &w) {
            w.ui.people->horizontalHeaderItem(0)->setData(HRWidgetsInterface::keyRole, "name");
            return section(w.ui.people->horizontalHeader(), 0);
        },
        { "name", "PartsWindow/name", "PartsWindow/people/Name", "people/Name",
            "PartsWindow/people/column1", "people/column1" } },
    { "cell of a table", [](PartsWindow &w) { return cell(w.ui.people, 1, 1); },
        { "PartsWindow/people/Age", "people/Age", "PartsWindow/people/column2", "people/column2",
            "PartsWindow/people/Second", "people/Second", "PartsWindow/people/row2", "people/row2",
            "PartsWindow/people", "people" } },
    { "cell with a key",
        [](PartsWindow &w) {
            w.ui.people->item(0, 1)->setData(HRWidgetsInterface::keyRole, "answer");
            return cell(w.ui.people, 0, 1);
        },
        { "answer", "PartsWindow/people/Age", "people/Age", "PartsWindow/people/column2",
            "people/column2", "PartsWindow/people/row1", "people/row1", "PartsWindow/people",
            "people" } },
    { "item of a list", [](PartsWindow &w) { return cell(w.ui.categories, 1, 0); },
        { "PartsWindow/categories/Colors", "categories/Colors", "PartsWindow/categories",
            "categories" } },
    { "item of a combo box's list", [](PartsWindow &w) { return listItem(w.ui.weight, 1); },
        { "PartsWindow/fontTab/weight/Bold", "fontTab/weight/Bold", "weight/Bold",
            "PartsWindow/fontTab/weight", "fontTab/weight", "weight" } },
    { "label by its buddy", [](PartsWindow &w) { return middleOf(w.ui.label); },
        { "PartsWindow/fontTab/size", "fontTab/size", "size" } },
    { "editor of a spin box",
        [](PartsWindow &w) { return pieceOf(w.ui.size, w.ui.size->findChild<QLineEdit *>()); },
        { "PartsWindow/fontTab/size", "fontTab/size", "size" } },
    { "editor of a combo box",
        [](PartsWindow &w) { return pieceOf(w.ui.family, w.ui.family->lineEdit()); },
        { "PartsWindow/fontTab/family", "fontTab/family", "family" } },
    { "button of a dialog",
        [](PartsWindow &w) { return middleOf(w.ui.buttons->button(QDialogButtonBox::Save)); },
        { "PartsWindow/buttons/Save", "buttons/Save", "PartsWindow/Save", "Save" } },
    { "group box",
        [](PartsWindow &w) {
            return Spot{ w.ui.effects, QPoint(4, w.ui.effects->height() - 6) };
        },
        { "PartsWindow/effects", "effects" } },
    { "check box in a group box", [](PartsWindow &w) { return middleOf(w.ui.strikeout); },
        { "PartsWindow/strikeout", "strikeout" } },
    { "title of a dock", [](PartsWindow &w) { return titleOf(w.ui.layersDock, w.ui.layers); },
        { "PartsWindow/layersDock", "layersDock" } },
    { "title of a sub-window",
        [](PartsWindow &w) { return titleOf(w.ui.drawing->parentWidget(), w.ui.drawing); },
        { "PartsWindow/drawing", "drawing" } },
    { "part of a status bar", [](PartsWindow &w) { return middleOf(w.zoom); },
        { "PartsWindow/zoom", "zoom" } },
    { "status bar",
        [](PartsWindow &w) {
            return Spot{ w.ui.statusbar, QPoint(4, 4) };
        },
        { "PartsWindow/statusbar", "statusbar" } },
    { "item of a scene", [](PartsWindow &w) { return square(w); },
        { "shape", "PartsWindow/canvas", "canvas" } },
    { "scene beside its items",
        [](PartsWindow &w) {
            return Spot{ w.ui.canvas, QPoint(8, 8), w.ui.canvas->rect() };
        },
        { "PartsWindow/canvas", "canvas" } },
    { "widget with a key", [](PartsWindow &w) { return middleOf(w.ui.swatch); },
        { "ink", "PartsWindow/fontTab/swatch", "fontTab/swatch", "swatch" } },
    { "page",
        [](PartsWindow &w) {
            return Spot{ w.ui.fontTab, QPoint(2, 2) };
        },
        { "PartsWindow/fontTab", "fontTab" } },
};

} // namespace

PartsWindow::PartsWindow()
    : zoom(new QLabel("100 %"))
{
    ui.setupUi(this);
    ui.label->setObjectName(QString());
    zoom->setObjectName("zoom");
    ui.statusbar->addPermanentWidget(zoom);
    scene.addRect(0, 0, 20, 20)->setData(HRWidgetsInterface::keyRole, "shape");
    scene.addRect(-30, -20, 80, 60)->setZValue(-1);
    ui.canvas->setScene(&scene);
    auto *subWindow = qobject_cast<QMdiSubWindow *>(ui.drawing->parentWidget());
    subWindow->resize(160, 80);
    show();
    // The dock has its place only once the layout is done.
    if (!QTest::qWaitForWindowExposed(this))
        qFatal("the window is not shown");
}

QRect Spot::globalArea() const
{
    return area.isNull() ? QRect() : QRect(widget->mapToGlobal(area.topLeft()), area.size());
}

QWidget *Spot::innermost() const
{
    QWidget *child = widget->childAt(position);
    return child ? child : widget;
}

const QVector<PartCase> &partCases()
{
    return cases;
}
