// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/HRLongPress_p.h"

#include <QApplication>
#include <QMouseEvent>
#include <QStyleHints>
#include <QTouchEvent>
#include <QWidget>

#include <utility>

namespace Hintreels {

namespace {

QPoint placeOf(const QTouchEvent &event)
{
    return event.touchPoints().first().screenPos().toPoint();
}

} // namespace

HRLongPress::HRLongPress(Show show)
    : m_show(std::move(show))
{
}

bool HRLongPress::filter(QObject &watched, QEvent &event)
{
    switch (event.type()) {
    case QEvent::TouchBegin:
        if (watched.isWindowType())
            begin(static_cast<const QTouchEvent &>(event));
        break;
    case QEvent::TouchUpdate:
        follow(static_cast<const QTouchEvent &>(event));
        break;
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        m_timer.stop();
        break;
    case QEvent::MouseButtonRelease:
        return watched.isWidgetType() && letGo(watched, static_cast<const QMouseEvent &>(event));
    default:
        break;
    }
    return false;
}

void HRLongPress::timerEvent(QTimerEvent *)
{
    m_timer.stop();
    QWidget *widget = QApplication::widgetAt(m_position);
    m_isShown = widget && m_show(widget, m_position);
}

void HRLongPress::begin(const QTouchEvent &event)
{
    m_isShown = false;
    m_position = placeOf(event);
    m_timer.start(QGuiApplication::styleHints()->mousePressAndHoldInterval(), this);
}

/// A finger that moves, or a second one, means something else.
void HRLongPress::follow(const QTouchEvent &event)
{
    const int way = (placeOf(event) - m_position).manhattanLength();
    if (event.touchPoints().size() > 1 || way > QApplication::startDragDistance())
        m_timer.stop();
}

/// Far outside, where a button is let go without being clicked.
bool HRLongPress::letGo(QObject &widget, const QMouseEvent &event)
{
    if (event.source() == Qt::MouseEventNotSynthesized || !std::exchange(m_isShown, false))
        return false;
    const QPointF outside(-QWIDGETSIZE_MAX, -QWIDGETSIZE_MAX);
    QMouseEvent released(QEvent::MouseButtonRelease, outside, outside, outside, event.button(),
        event.buttons(), event.modifiers(), event.source());
    widget.event(&released);
    return true;
}

} // namespace Hintreels
