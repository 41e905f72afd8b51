// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/parts/actionParts_p.h"

#include "widgets/parts/partName_p.h"

#include <QMenu>
#include <QMenuBar>
#include <QToolButton>

namespace Hintreels {

namespace {

HRPart entryOf(QWidget *bar, QAction *action, const QRect &area)
{
    HRPart part(bar, area);
    part.does(action);
    part.showsText = true;
    part.showsShortcut = qobject_cast<QMenu *>(bar);
    return part;
}

HRPart wholeBar(QWidget *bar)
{
    HRPart part(bar);
    part.goesBy(bar);
    return part;
}

template <class Bar>
std::optional<HRPart> entryAt(QWidget *widget, const QPoint &position)
{
    auto *bar = qobject_cast<Bar *>(widget);
    if (!bar)
        return std::nullopt;
    QAction *action = bar->actionAt(position);
    if (!action)
        action = bar->activeAction();
    return action ? entryOf(bar, action, bar->actionGeometry(action)) : wholeBar(bar);
}

template <class Bar>
QVector<HRPart> entries(QWidget *widget)
{
    auto *bar = static_cast<Bar *>(widget);
    QVector<HRPart> parts;
    const QList<QAction *> actions = bar->actions();
    for (QAction *action : actions) {
        if (action->isVisible() && !action->isSeparator())
            parts.append(
                entryOf(bar, action, bar->isVisible() ? bar->actionGeometry(action) : QRect()));
    }
    return parts;
}

bool showsText(const QToolButton &button)
{
    const bool hasOnlyIcon = button.toolButtonStyle() == Qt::ToolButtonIconOnly;
    return !hasOnlyIcon || button.icon().isNull();
}

} // namespace

std::optional<HRPart> menuEntryAt(QWidget *widget, const QPoint &position)
{
    return entryAt<QMenu>(widget, position);
}

QVector<HRPart> menuEntries(QWidget *widget)
{
    return entries<QMenu>(widget);
}

std::optional<HRPart> menuBarEntryAt(QWidget *widget, const QPoint &position)
{
    return entryAt<QMenuBar>(widget, position);
}

QVector<HRPart> menuBarEntries(QWidget *widget)
{
    return entries<QMenuBar>(widget);
}

std::optional<HRPart> toolButtonAt(QWidget *widget, const QPoint &)
{
    auto *button = qobject_cast<QToolButton *>(widget);
    if (!button)
        return std::nullopt;
    HRPart part(button);
    part.goesBy(button);
    part.text = withoutMnemonic(button->text());
    part.does(button->defaultAction());
    part.goesBy(button->menu());
    part.showsText = showsText(*button);
    return part;
}

} // namespace Hintreels
