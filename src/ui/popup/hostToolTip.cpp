// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/hostToolTip_p.h"

#include "ui/popup/popupGeometry_p.h"

#include <QApplication>
#include <QWidget>

namespace Hintreels {

namespace {

// Qt places a tool tip below the pointer, by as much as the largest pointers are high.
constexpr QSize reach(48, 48); // px

// On its way into the popup the pointer passes a margin around it.
constexpr QSize way(20, 20); // px

} // namespace

bool isHostToolTip(const QObject &object)
{
    return object.isWidgetType() && object.inherits("QTipLabel");
}

bool isToolTipOf(const QRect &part, const QRect &toolTip, const QRect &popup, const QPoint &pointer)
{
    const QRect around
        = part.adjusted(-reach.width(), -reach.height(), reach.width(), reach.height());
    return !part.isEmpty() && around.intersects(toolTip)
        && (part.contains(pointer) || isNear(popup, way, pointer));
}

void keepHidden(QWidget &toolTip)
{
    // It is in the middle of being shown, and would be mapped after it was hidden.
    toolTip.setAttribute(Qt::WA_DontShowOnScreen);
    QMetaObject::invokeMethod(&toolTip, &QWidget::hide, Qt::QueuedConnection);
}

void hideHostToolTips()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->isVisible() && isHostToolTip(*window))
            window->hide();
    }
}

} // namespace Hintreels
