// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "video/HRSchedule_p.h"

#include <QDebug>

namespace Hintreels {

/// Asks a controller or a source to end, which wakes it, and waits for that.
/// @return whether it has ended, within @p patience milliseconds
template <typename Thread>
bool stopThread(Thread *thread, unsigned long patience)
{
    thread->setShouldQuit();
    if (!thread->wait(patience))
        return false;
    HRSchedule::hasEnded(thread);
    return true;
}

/// The same with much patience; then terminates the thread, with a message that names its class.
template <typename Thread>
void stopThreadAtLast(Thread *thread, const char *className)
{
    constexpr unsigned long muchPatience = 10000; // ms, before and after terminating
    if (stopThread(thread, muchPatience))
        return;
    qDebug("%s did not quit in a timely fashion", className);
    thread->terminate();
    if (!thread->wait(muchPatience))
        qDebug("%s did not quit at all", className);
}

} // namespace Hintreels
