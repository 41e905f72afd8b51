// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRHoverFilter_p.h"

#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"
#include "ui/popup/popupParts_p.h"

#include <QHelpEvent>
#include <QMouseEvent>

#include <utility>

namespace Hintreels {

HRHoverFilter::HRHoverFilter(Popup popup, Show show)
    : m_popup(std::move(popup))
    , m_show(std::move(show))
{
}

bool HRHoverFilter::filter(QObject *watched, QEvent &event) const
{
    switch (event.type()) {
    case QEvent::ToolTip:
        return m_show(watched, static_cast<QHelpEvent &>(event).globalPos());
    case QEvent::ApplicationDeactivate:
        hidePopup();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
        followButton(watched);
        break;
    case QEvent::MouseMove:
        followPointer(static_cast<QMouseEvent &>(event).globalPos());
        break;
    default:
        break;
    }
    return false;
}

void HRHoverFilter::followPointer(const QPoint &globalPos) const
{
    HRWidget *popup = m_popup();
    if (popup && popup->isVisible())
        popup->checkMousePosition(globalPos);
}

void HRHoverFilter::followButton(const QObject *target) const
{
    const auto *widget = qobject_cast<const QWidget *>(target);
    HRWidget *popup = m_popup();
    if (!widget || !popup || !popup->isVisible() || !isOfHost(*popup, *widget))
        return;
    if (popup->view() && popup->view()->stayOpen())
        popup->activateWindow();
    else
        popup->hide();
}

void HRHoverFilter::hidePopup() const
{
    if (HRWidget *popup = m_popup())
        popup->hide();
}

} // namespace Hintreels
