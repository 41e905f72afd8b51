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
    const auto *widget = qobject_cast<const QWidget *>(&object);
    return widget && widget != &popup && !popup.isAncestorOf(widget);
}

QRect areaOnScreen(const HRWidget &popup)
{
    return { popup.mapToGlobal(QPoint(0, 0)), popup.size() };
}

} // namespace Hintreels
