// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/parts/sceneParts_p.h"

#include "widgets/parts/viewParts_p.h"

#include <QGraphicsItem>
#include <QGraphicsObject>
#include <QGraphicsScene>
#include <QGraphicsView>

namespace Hintreels {

namespace {

HRPart itemOf(const QGraphicsView &view, QGraphicsItem *item)
{
    const QRect area = view.mapFromScene(item->sceneBoundingRect()).boundingRect();
    HRPart part(view.viewport(), area & view.viewport()->rect());
    part.key = item->data(partKeyRole).toString();
    part.goesBy(item->toGraphicsObject());
    return part;
}

HRPart wholeView(QGraphicsView *view)
{
    HRPart part(view);
    part.goesBy(view);
    return part;
}

/// The first of an item and those around it that carries a key; else the view.
HRPart itemOrView(QGraphicsView *view, QGraphicsItem *item)
{
    for (; item; item = item->parentItem()) {
        HRPart part = itemOf(*view, item);
        if (!part.isNameless()) {
            part.goesBy(view);
            return part;
        }
    }
    return wholeView(view);
}

} // namespace

std::optional<HRPart> sceneItemAt(QWidget *widget, const QPoint &position)
{
    auto *view = qobject_cast<QGraphicsView *>(widget);
    if (!view)
        return std::nullopt;
    return itemOrView(view, view->itemAt(view->viewport()->mapFrom(view, position)));
}

HRPart currentSceneItem(QWidget *widget)
{
    auto *view = static_cast<QGraphicsView *>(widget);
    return itemOrView(view, view->scene() ? view->scene()->focusItem() : nullptr);
}

QVector<HRPart> sceneItems(QWidget *widget)
{
    auto *view = static_cast<QGraphicsView *>(widget);
    QVector<HRPart> parts{ wholeView(view) };
    const QList<QGraphicsItem *> items = view->items();
    for (QGraphicsItem *item : items) {
        const HRPart part = itemOf(*view, item);
        if (!part.isNameless())
            parts.append(part);
    }
    return parts;
}

} // namespace Hintreels
