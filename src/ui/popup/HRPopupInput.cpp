// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRPopupInput_p.h"

#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"
#include "ui/popup/popupParts_p.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWheelEvent>

#include <utility>

namespace Hintreels {

HRPopupInput::HRPopupInput(const HRWidget &popup)
    : m_popup(popup)
{
}

bool HRPopupInput::take(const QObject &watched, const QEvent &event)
{
    if (!m_popup.view() || !isOfHost(m_popup, watched))
        return false;
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        return takePointer(static_cast<const QMouseEvent &>(event));
    case QEvent::Wheel:
        return takeWheel(static_cast<const QWheelEvent &>(event));
    default:
        return false;
    }
}

/// Whoever presses in the popup has the pointer until the release, as in any window.
bool HRPopupInput::takePointer(const QMouseEvent &event)
{
    const bool isInside = areaOnScreen(m_popup).contains(event.globalPos());
    const bool isHeld = std::exchange(m_isPressed, false);
    if (!isInside && !isHeld) {
        leave();
        return false;
    }
    const bool isPress
        = event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
    m_isPressed = (isHeld || isPress) && event.buttons() != Qt::NoButton;
    m_isInside = true;
    const QPointF position = m_popup.view()->mapFromGlobal(event.globalPos());
    QMouseEvent handed(event.type(), position, position, event.globalPos(), event.button(),
        event.buttons(), event.modifiers(), event.source());
    handed.setTimestamp(event.timestamp());
    QCoreApplication::sendEvent(m_popup.view(), &handed);
    return true;
}

bool HRPopupInput::takeWheel(const QWheelEvent &event)
{
    const QPoint position = event.globalPosition().toPoint();
    if (!areaOnScreen(m_popup).contains(position))
        return false;
    QWheelEvent handed(m_popup.view()->mapFromGlobal(position), event.globalPosition(),
        event.pixelDelta(), event.angleDelta(), event.buttons(), event.modifiers(), event.phase(),
        event.inverted(), event.source());
    handed.setTimestamp(event.timestamp());
    QCoreApplication::sendEvent(m_popup.view(), &handed);
    return true;
}

void HRPopupInput::leave()
{
    if (!std::exchange(m_isInside, false))
        return;
    QEvent left(QEvent::Leave);
    QCoreApplication::sendEvent(m_popup.view(), &left);
}

} // namespace Hintreels
