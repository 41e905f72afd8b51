// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDeadlineTimer>
#include <QRandomGenerator>
#include <QThread>
#include <QtTest>

/// The only places where a test lets time pass. Whoever waits for something of this process and
/// this thread uses QTRY_ macros and spies instead.

/// Blocks the calling thread, and with it its event loop, as a host does that computes: how the
/// library bears that is what is tested.
inline void blockThread(int milliseconds)
{
    QThread::msleep(static_cast<unsigned long>(milliseconds));
}

/// Looks until a condition holds, for threads that have no event loop.
/// @return whether it held in time
template <typename Condition>
bool lookUntil(const Condition &condition, QDeadlineTimer deadline = QDeadlineTimer(30000))
{
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QThread::msleep(1);
    }
    return true;
}

/// Lets another process go on for up to 30 ms, to meet it at whatever it is doing then.
inline void meetOtherProcess(QRandomGenerator &random)
{
    constexpr int longestPause = 30000; // microseconds
    QThread::usleep(static_cast<unsigned long>(random.bounded(longestPause)));
}

/// Handles events while another process, such as the X server or the window manager, does what it
/// tells nobody of when it is done.
inline void letOtherProcessWork()
{
    constexpr int aMoment = 20; // ms
    QTest::qWait(aMoment);
}
