// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/HRRestWatch_p.h"

#include <QApplication>
#include <QCursor>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>

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

HRRestWatch::HRRestWatch(Delay delay, WaitsForCtrl waitsForCtrl)
    : m_delay(std::move(delay))
    , m_waitsForCtrl(std::move(waitsForCtrl))
{
}

bool HRRestWatch::holdsBack(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::Enter:
        m_known.reset();
        return false;
    case QEvent::ToolTip:
        m_known.reset();
        return m_timer.isActive();
    case QEvent::KeyPress:
        followKey(static_cast<const QKeyEvent &>(event));
        return false;
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
void HRRestWatch::follow(QObject *watched, const QMouseEvent &event)
{
    if (!watched->isWidgetType())
        return;
    if (!m_known)
        m_known = m_delay();
    m_timer.stop();
    if (*m_known < 0 || event.buttons() != Qt::NoButton)
        return;
    auto *widget = static_cast<QWidget *>(watched);
    if (!widget->childAt(event.pos())) {
        m_widget = widget;
        m_position = event.pos();
    }
    m_timer.start(*m_known, this);
}

/// Ctrl that goes on with another key is a shortcut of the host's.
void HRRestWatch::followKey(const QKeyEvent &event)
{
    m_timer.stop();
    const bool isCtrlAlone = event.key() == Qt::Key_Control
        && !(event.modifiers() & ~Qt::KeyboardModifiers(Qt::ControlModifier));
    if (isCtrlAlone && m_waitsForCtrl())
        restUnderPointer();
}

void HRRestWatch::restUnderPointer()
{
    const QPoint pointer = QCursor::pos();
    m_widget = QApplication::widgetAt(pointer);
    if (!m_widget)
        return;
    m_position = m_widget->mapFromGlobal(pointer);
    const int delay = m_delay();
    const int desktops = m_widget->style()->styleHint(QStyle::SH_ToolTip_WakeUpDelay);
    m_timer.start(delay < 0 ? desktops : delay, this);
}

/// The host may do anything when it is told.
void HRRestWatch::tell()
{
    QHelpEvent event(QEvent::ToolTip, m_position, m_widget->mapToGlobal(m_position));
    QCoreApplication::sendEvent(m_widget, &event);
}

} // namespace Hintreels
