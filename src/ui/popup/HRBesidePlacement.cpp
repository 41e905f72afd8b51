// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRBesidePlacement_p.h"

#include "ui/popup/popupScreen_p.h"
#include "ui/popup/wayland_p.h"

#include <QApplication>
#include <QToolBar>

namespace Hintreels {

namespace {

/// Menus that lead to one another, and the lists of combo boxes.
QRect openMenus()
{
    QRect around;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        if (window->windowType() == Qt::Popup && window->isVisible())
            around |= window->frameGeometry();
    }
    return around;
}

bool isInColumn(const QWidget *widget)
{
    const auto *toolBar = qobject_cast<const QToolBar *>(widget ? widget->parentWidget() : nullptr);
    return toolBar && toolBar->orientation() == Qt::Vertical;
}

} // namespace

void HRBesidePlacement::start(QWidget *reference, const QRect &part, const QPoint &pointer)
{
    m_reference = reference;
    m_part = part.isEmpty() ? visibleArea(reference) : part;
    m_pointer = pointer;
    m_side.reset();
}

QPoint HRBesidePlacement::topLeftFor(const QSize &popup, const QSize &offset)
{
    const bool mirrored = m_reference && m_reference->isRightToLeft();
    const HRPlaced placed = placedBeside({ m_part, openMenus(), m_pointer, offset, screen(),
                                             mirrored, m_side, isInColumn(m_reference) },
        popup);
    m_side = placed.side;
    return placed.topLeft;
}

QRect HRBesidePlacement::screen() const
{
    return isOnWayland() ? roomBesideWindow(windowToStandBeside(m_reference), m_pointer)
                         : availableGeometry(nullptr, m_pointer);
}

bool HRBesidePlacement::leadsTo(const QRect &popup, const QPoint &position) const
{
    return !m_part.isEmpty() && isBetween(m_part, popup, position);
}

} // namespace Hintreels
