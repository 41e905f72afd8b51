// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRSmallStart_p.h"

#include <QKeyEvent>

#include <utility>

namespace Hintreels {

namespace {

// A title and a line are read by then; who goes on to the next tool is gone.
constexpr int restInterval = 1000; // ms

} // namespace

HRSmallStart::HRSmallStart(Rests rests, Grow grow)
    : m_rests(std::move(rests))
    , m_grow(std::move(grow))
{
}

void HRSmallStart::start()
{
    m_timer.start(restInterval, this);
}

void HRSmallStart::end()
{
    if (!m_timer.isActive())
        return;
    m_timer.stop();
    m_grow();
}

void HRSmallStart::followKey(const QKeyEvent &event)
{
    if (event.key() == Qt::Key_Shift)
        end();
}

void HRSmallStart::timerEvent(QTimerEvent *)
{
    if (m_rests())
        end();
}

} // namespace Hintreels
