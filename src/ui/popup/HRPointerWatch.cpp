// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRPointerWatch_p.h"

#include <QCursor>

namespace Hintreels {

namespace {

// Short beside any sensible delay until a popup hides, long beside what a look costs.
constexpr int lookInterval = 200; // ms

} // namespace

HRPointerWatch::HRPointerWatch(Moved moved)
    : m_moved(std::move(moved))
{
}

void HRPointerWatch::start(const QPoint &position)
{
    m_lastPosition = position;
    m_timer.start(lookInterval, this);
}

void HRPointerWatch::stop()
{
    m_timer.stop();
}

void HRPointerWatch::timerEvent(QTimerEvent *)
{
    const QPoint position = QCursor::pos();
    if (position == m_lastPosition)
        return;
    m_lastPosition = position;
    m_moved(position);
}

} // namespace Hintreels
