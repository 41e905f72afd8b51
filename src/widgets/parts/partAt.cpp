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
    { toolBoxTabAt },
    { toolButtonAt },
    { dialogButtonAt },
    { buttonAt },
    { labelAt },
    { tabAt, tabs, currentTab },
    { sectionAt, sections, currentSection },
    { cellAt, cells, currentCell },
    { sceneItemAt, sceneItems, currentSceneItem },
    { groupBoxAt },
    { dockAt },
    { subWindowAt },
};

// Outside of every widget.
constexpr QPoint nowhere(-1, -1);

QWidget *wholeOf(QWidget *widget)
{
    while (isPiece(widget))
        widget = widget->parentWidget();
    return widget;
}

HRPart plain(QWidget *widget)
{
    HRPart part(widget);
    part.goesBy(widget);
    return part;
}

HRPart find(QWidget *widget, const QPoint &position)
{
    for (const HRPartKind &kind : kinds) {
        if (const std::optional<HRPart> part = kind.at(widget, position))
            return *part;
    }
    return plain(widget);
}

HRPart findCurrent(QWidget *widget)
{
    for (const HRPartKind &kind : kinds) {
        if (const std::optional<HRPart> part = kind.at(widget, nowhere))
            return kind.current ? kind.current(widget) : *part;
    }
    return plain(widget);
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

/// A part as its innermost widget has it.
HRPart seenFrom(QWidget *innermost, HRPart part)
{
    if (part.area.isNull() && part.isNameless())
        part = named(part);
    if (part.area.isNull() && part.widget != innermost)
        part.area = globalArea(part.widget, part.widget->rect());
    part.widget = innermost;
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
    const QPointer<QWidget> guarded = hovered;
    QWidget *whole = wholeOf(hovered);
    const HRPart part = find(whole, whole->mapFromGlobal(position));
    return guarded ? seenFrom(hovered, part) : HRPart(nullptr);
}

HRPart partInFocus(QWidget *focused)
{
    const QPointer<QWidget> guarded = focused;
    const HRPart part = findCurrent(wholeOf(focused));
    return guarded ? seenFrom(focused, part) : HRPart(nullptr);
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
