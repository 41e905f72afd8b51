// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/popupScreen_p.h"

#include "ui/popup/popupGeometry_p.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace Hintreels {

namespace {

QVector<QRect> screenGeometries(const QList<QScreen *> &screens)
{
    QVector<QRect> geometries;
    for (const QScreen *screen : screens)
        geometries.append(screen->geometry());
    return geometries;
}

QScreen *fallbackScreen(const QWidget *reference)
{
    QScreen *screen = reference ? reference->screen() : nullptr;
    return screen ? screen : QGuiApplication::primaryScreen();
}

} // namespace

QRect availableGeometry(const QWidget *reference, const QPoint &position)
{
    const QRect area = reference ? QRect(reference->mapToGlobal(QPoint(0, 0)), reference->size())
                                 : QRect(position, QSize(1, 1));
    const QList<QScreen *> screens = QGuiApplication::screens();
    const int covered = mostCoveredScreen(area, screenGeometries(screens));
    const QScreen *screen = covered >= 0 ? screens.at(covered) : fallbackScreen(reference);
    // For a moment there may be no screen at all, when the only one is unplugged.
    return screen ? screen->availableGeometry() : area;
}

QRect visibleArea(const QWidget *widget)
{
    const QRect area = widget ? widget->visibleRegion().boundingRect() : QRect();
    return area.isEmpty() ? QRect() : area.translated(widget->mapToGlobal(QPoint(0, 0)));
}

} // namespace Hintreels
