// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/parts/titleParts_p.h"

#include "widgets/parts/partName_p.h"

#include <QDockWidget>
#include <QGroupBox>
#include <QMdiSubWindow>
#include <QStyle>
#include <QStyleOptionGroupBox>

namespace Hintreels {

namespace {

HRPart titled(QWidget *widget, const QString &title, const QRect &area, const QPoint &position)
{
    const bool isOnTitle = area.contains(position);
    HRPart part(widget, isOnTitle ? area : QRect());
    part.goesBy(widget);
    part.text = withoutMnemonic(title);
    part.showsText = isOnTitle;
    return part;
}

QRect titleArea(const QGroupBox &box)
{
    QStyleOptionGroupBox option;
    option.initFrom(&box);
    option.text = box.title();
    option.textAlignment = box.alignment();
    option.lineWidth = 1;
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    if (box.isCheckable())
        option.subControls |= QStyle::SC_GroupBoxCheckBox;
    const auto areaOf = [&](QStyle::SubControl control) {
        return box.style()->subControlRect(QStyle::CC_GroupBox, &option, control, &box);
    };
    const QRect label = areaOf(QStyle::SC_GroupBoxLabel);
    return box.isCheckable() ? label.united(areaOf(QStyle::SC_GroupBoxCheckBox)) : label;
}

/// What lies before the content of a window, which is its title.
QRect titleArea(const QWidget &window, const QWidget *content, bool isVertical)
{
    if (!content)
        return window.rect();
    QRect area = window.rect();
    if (isVertical)
        area.setRight(content->x() - 1);
    else
        area.setBottom(content->y() - 1);
    return area;
}

} // namespace

std::optional<HRPart> groupBoxAt(QWidget *widget, const QPoint &position)
{
    auto *box = qobject_cast<QGroupBox *>(widget);
    if (!box)
        return std::nullopt;
    return titled(box, box->title(), titleArea(*box), position);
}

std::optional<HRPart> dockAt(QWidget *widget, const QPoint &position)
{
    auto *dock = qobject_cast<QDockWidget *>(widget);
    if (!dock)
        return std::nullopt;
    const bool isVertical = dock->features().testFlag(QDockWidget::DockWidgetVerticalTitleBar);
    return titled(
        dock, dock->windowTitle(), titleArea(*dock, dock->widget(), isVertical), position);
}

std::optional<HRPart> subWindowAt(QWidget *widget, const QPoint &position)
{
    auto *window = qobject_cast<QMdiSubWindow *>(widget);
    if (!window)
        return std::nullopt;
    HRPart part = titled(
        window, window->windowTitle(), titleArea(*window, window->widget(), false), position);
    part.goesBy(window->widget());
    return part;
}

} // namespace Hintreels
