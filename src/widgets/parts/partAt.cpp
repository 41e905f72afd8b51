// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/parts/partAt_p.h"

#include "widgets/parts/actionParts_p.h"
#include "widgets/parts/buttonParts_p.h"
#include "widgets/parts/partName_p.h"
#include "widgets/parts/partPlace_p.h"
#include "widgets/parts/sceneParts_p.h"
#include "widgets/parts/tabParts_p.h"
#include "widgets/parts/titleParts_p.h"
#include "widgets/parts/viewParts_p.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDockWidget>

namespace Hintreels {

namespace {

// The first that knows a widget: headers are item views, too, and dialog buttons are buttons.
const HRPartKind kinds[] = {
    { menuEntryAt, menuEntries },
    { menuBarEntryAt, menuBarEntries },
    { toolButtonAt, nullptr },
    { dialogButtonAt, nullptr },
    { buttonAt, nullptr },
    { labelAt, nullptr },
    { tabAt, tabs },
    { sectionAt, sections },
    { cellAt, cells },
    { sceneItemAt, sceneItems },
    { groupBoxAt, nullptr },
    { dockAt, nullptr },
    { subWindowAt, nullptr },
};

// Outside of every widget.
constexpr QPoint nowhere(-1, -1);

QWidget *wholeOf(QWidget *widget)
{
    while (isPiece(widget))
        widget = widget->parentWidget();
    return widget;
}

HRPart find(QWidget *widget, const QPoint &position)
{
    for (const HRPartKind &kind : kinds) {
        if (const std::optional<HRPart> part = kind.at(widget, position))
            return *part;
    }
    HRPart part(widget);
    part.goesBy(widget);
    return part;
}

/// What a nameless widget belongs to: the nearest around it that has a name; else itself.
HRPart named(const HRPart &part)
{
    QWidget *widget = part.widget;
    while (!isPlace(widget) && (widget = widget->parentWidget()) && !isPlace(widget)) {
        HRPart around(widget);
        around.goesBy(widget);
        if (!around.isNameless())
            return around;
    }
    return part;
}

} // namespace

bool isPiece(const QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    if (!parent || widget->isWindow())
        return false;
    const auto *area = qobject_cast<const QAbstractScrollArea *>(parent);
    if (area && area->viewport() == widget)
        return true;
    // A dock has no pieces but the buttons of its title, whose names are Qt's own.
    const bool hasPieces = qobject_cast<const QAbstractSpinBox *>(parent)
        || qobject_cast<const QComboBox *>(parent)
        || (qobject_cast<const QDockWidget *>(parent) && !widget->objectName().isEmpty());
    return hasPieces && nameOf(widget).isEmpty() && keyOf(widget).isEmpty();
}

HRPart partAt(QWidget *hovered, const QPoint &position)
{
    QWidget *whole = wholeOf(hovered);
    HRPart part = find(whole, whole->mapFromGlobal(position));
    if (part.area.isNull() && part.isNameless())
        part = named(part);
    if (part.area.isNull() && part.widget != hovered)
        part.area = globalArea(part.widget, part.widget->rect());
    part.widget = hovered;
    return part;
}

HRPart wholePart(QWidget *widget)
{
    return find(wholeOf(widget), nowhere);
}

QVector<HRPart> partsOf(QWidget *widget)
{
    for (const HRPartKind &kind : kinds) {
        if (kind.all && kind.at(widget, nowhere))
            return kind.all(widget);
    }
    return { find(widget, nowhere) };
}

} // namespace Hintreels
