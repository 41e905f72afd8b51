// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/popupParts_p.h"

#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"

namespace Hintreels {

bool isOfHost(const HRWidget &popup, const QObject &object)
{
    if (object.isWindowType())
        return &object != popup.view() && &object != popup.windowHandle();
    const QObject *owner = &object;
    while (owner && owner != &popup)
        owner = owner->parent();
    return object.isWidgetType() && !owner;
}

QRect areaOnScreen(const HRWidget &popup)
{
    return { popup.mapToGlobal(QPoint(0, 0)), popup.size() };
}

} // namespace Hintreels
