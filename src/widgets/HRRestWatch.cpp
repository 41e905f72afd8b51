// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/HRRestWatch_p.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QMouseEvent>

#include <utility>

namespace Hintreels {

namespace {

/// As Qt decides for its own tooltip events; so does mayHaveToolTip().
bool endsRest(QEvent::Type type)
{
    switch (type) {
    case QEvent::ActivationChange:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Leave:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::Wheel:
        return true;
    default:
        return false;
    }
}

bool mayHaveToolTip(const QWidget &widget)
{
    if (widget.window()->testAttribute(Qt::WA_AlwaysShowToolTips))
        return true;
    const QWidget *window = widget.window();
    while (window && !window->isActiveWindow())
        window = window->parentWidget() ? window->parentWidget()->window() : nullptr;
    return window;
}

} // namespace

HRRestWatch::HRRestWatch(Delay delay)
    : m_delay(std::move(delay))
{
}

bool HRRestWatch::holdsBack(QObject *watched, const QEvent &event)
{
    auto *widget = watched->isWidgetType() ? static_cast<QWidget *>(watched) : nullptr;
    switch (event.type()) {
    case QEvent::MouseMove:
        if (widget)
            rest(*widget, static_cast<const QMouseEvent &>(event));
        return false;
    case QEvent::ToolTip:
        return m_timer.isActive();
    default:
        if (endsRest(event.type()))
            m_timer.stop();
        return false;
    }
}

void HRRestWatch::timerEvent(QTimerEvent *)
{
    m_timer.stop();
    if (m_widget && mayHaveToolTip(*m_widget))
        tell();
}

/// A move that a widget has not taken comes to those around it, where the pointer does not rest.
void HRRestWatch::rest(QWidget &widget, const QMouseEvent &event)
{
    const int delay = m_delay();
    m_timer.stop();
    if (delay < 0 || event.buttons() != Qt::NoButton)
        return;
    if (!widget.childAt(event.pos())) {
        m_widget = &widget;
        m_position = event.pos();
    }
    m_timer.start(delay, this);
}

/// The host may do anything when it is told.
void HRRestWatch::tell()
{
    QHelpEvent event(QEvent::ToolTip, m_position, m_widget->mapToGlobal(m_position));
    QCoreApplication::sendEvent(m_widget, &event);
}

} // namespace Hintreels
