// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/parts/partPlace_p.h"

#include "widgets/parts/HRPart_p.h"
#include "widgets/parts/partName_p.h"

#include <QDockWidget>
#include <QMdiSubWindow>
#include <QScrollArea>
#include <QStackedWidget>
#include <QToolBox>
#include <QWizardPage>

namespace Hintreels {

namespace {

bool isPopup(const QWidget *widget)
{
    return widget->windowType() == Qt::Popup;
}

/// Qt puts each page of a tool box into a scroll area of its own.
bool isInToolBox(const QWidget *widget)
{
    const QWidget *viewport = widget->parentWidget();
    const auto *area = viewport ? qobject_cast<const QScrollArea *>(viewport->parent()) : nullptr;
    return area && area->widget() == widget && qobject_cast<const QToolBox *>(area->parent());
}

/// The last place is the window; what a menu or a list belongs to goes on behind it.
bool isLastPlace(const QWidget *widget)
{
    return widget->isWindow() && !isPopup(widget) && !qobject_cast<const QDockWidget *>(widget);
}

/// The places around a widget, from the innermost one.
QVector<QWidget *> placesAround(QWidget *widget)
{
    QVector<QWidget *> places;
    while (!isLastPlace(widget) && (widget = widget->parentWidget())) {
        if (isPlace(widget) && !isPopup(widget))
            places.append(widget);
    }
    return places;
}

/// A name alone, and behind the names of one place after the other; the longest key comes first.
QStringList keysOf(const QString &name, const QVector<QWidget *> &places)
{
    QStringList keys{ name };
    for (const QWidget *place : places) {
        const QString placeName = nameOf(place);
        if (!placeName.isEmpty())
            keys.prepend(placeName + u'/' + keys.first());
    }
    return keys;
}

void addOnce(QStringList *keys, const QStringList &more)
{
    for (const QString &key : more) {
        if (!key.isEmpty() && !keys->contains(key))
            keys->append(key);
    }
}

} // namespace

bool isPlace(const QWidget *widget)
{
    return widget->isWindow() || qobject_cast<const QStackedWidget *>(widget->parent())
        || qobject_cast<const QWizardPage *>(widget) || qobject_cast<const QDockWidget *>(widget)
        || qobject_cast<const QMdiSubWindow *>(widget) || isInToolBox(widget);
}

QStringList keysOf(const HRPart &part)
{
    QStringList keys;
    addOnce(&keys, { part.key });
    const QVector<QWidget *> places = placesAround(part.widget);
    for (const QString &name : part.names)
        addOnce(&keys, keysOf(name, places));
    return keys;
}

QStringList keysAround(const HRPart &part)
{
    QStringList keys;
    const auto places = placesAround(part.widget);
    for (QWidget *place : places) {
        HRPart around(place);
        around.goesBy(place);
        addOnce(&keys, keysOf(around));
    }
    return keys;
}

} // namespace Hintreels
