// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRPointerWatch_p.h"

#include "ui/popup/wayland_p.h"

#include <QCoreApplication>
#include <QCursor>
#include <QEvent>

namespace Hintreels {

namespace {

// Short beside any sensible delay until a popup hides, long beside what a look costs.
constexpr int lookInterval = 200; // ms

} // namespace

HRPointerWatch::HRPointerWatch(Moved moved)
    : m_moved(std::move(moved))
{
    if (isOnWayland())
        QCoreApplication::instance()->installEventFilter(this);
}

HRPointerWatch::Position HRPointerWatch::position() const
{
    return m_isNowhere ? Position() : QCursor::pos();
}

void HRPointerWatch::start()
{
    m_lastPosition = position();
    m_timer.start(lookInterval, this);
}

void HRPointerWatch::stop()
{
    m_timer.stop();
}

bool HRPointerWatch::eventFilter(QObject *watched, QEvent *event)
{
    const bool leaves = event->type() == QEvent::Leave;
    if (watched->isWindowType() && (leaves || event->type() == QEvent::Enter)) {
        m_isNowhere = leaves;
        look();
    }
    return QObject::eventFilter(watched, event);
}

void HRPointerWatch::timerEvent(QTimerEvent *)
{
    look();
}

void HRPointerWatch::look()
{
    const Position now = position();
    if (!m_timer.isActive() || now == m_lastPosition)
        return;
    m_lastPosition = now;
    m_moved(now);
}

} // namespace Hintreels
