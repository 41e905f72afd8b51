// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/parts/tabParts_p.h"

#include "widgets/parts/partName_p.h"

#include <QAbstractButton>
#include <QDockWidget>
#include <QLayout>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBox>

namespace Hintreels {

namespace {

/// The dock that a main window shows under a tab of its own; Qt says so by the title only.
const QDockWidget *dockCalled(const QString &title, const QMainWindow *window)
{
    const auto docks = window->findChildren<QDockWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QDockWidget *dock : docks) {
        if (dock->windowTitle() == title)
            return dock;
    }
    return nullptr;
}

const QObject *pageOf(const QTabBar *bar, int index)
{
    if (const auto *tabWidget = qobject_cast<const QTabWidget *>(bar->parent()))
        return tabWidget->widget(index);
    if (const auto *window = qobject_cast<const QMainWindow *>(bar->parent()))
        return dockCalled(bar->tabText(index), window);
    if (const auto *area = qobject_cast<const QMdiArea *>(bar->parent()))
        return area->subWindowList().value(index);
    return nullptr;
}

HRPart tab(QTabBar *bar, int index)
{
    HRPart part(bar, bar->tabRect(index));
    const QVariant data = bar->tabData(index);
    if (data.userType() == QMetaType::QString && !data.toString().isEmpty())
        part.names.append(data.toString());
    const QObject *page = pageOf(bar, index);
    part.goesBy(page);
    if (const auto *window = qobject_cast<const QMdiSubWindow *>(page))
        part.goesBy(window->widget());
    part.text = withoutMnemonic(bar->tabText(index));
    part.showsText = true;
    return part;
}

/// The bar itself where there is no such tab.
HRPart tabOrBar(QTabBar *bar, int index)
{
    if (index >= 0)
        return tab(bar, index);
    HRPart part(bar);
    part.goesBy(bar);
    return part;
}

} // namespace

std::optional<HRPart> tabAt(QWidget *widget, const QPoint &position)
{
    auto *bar = qobject_cast<QTabBar *>(widget);
    if (!bar)
        return std::nullopt;
    return tabOrBar(bar, bar->tabAt(position));
}

HRPart currentTab(QWidget *widget)
{
    auto *bar = static_cast<QTabBar *>(widget);
    return tabOrBar(bar, bar->currentIndex());
}

QVector<HRPart> tabs(QWidget *widget)
{
    auto *bar = static_cast<QTabBar *>(widget);
    QVector<HRPart> parts;
    for (int i = 0; i < bar->count(); ++i)
        parts.append(tab(bar, i));
    return parts;
}

const QWidget *toolBoxPageOf(QWidget *button)
{
    const auto *box = qobject_cast<const QToolBox *>(button->parent());
    const bool isButton = box && qobject_cast<const QAbstractButton *>(button);
    // The layout holds a button and its page by turns.
    return isButton ? box->widget(box->layout()->indexOf(button) / 2) : nullptr;
}

std::optional<HRPart> toolBoxTabAt(QWidget *widget, const QPoint &)
{
    const QWidget *page = toolBoxPageOf(widget);
    if (!page)
        return std::nullopt;
    HRPart part(widget);
    part.goesBy(page);
    part.text = withoutMnemonic(static_cast<const QAbstractButton *>(widget)->text());
    part.showsText = true;
    return part;
}

} // namespace Hintreels
