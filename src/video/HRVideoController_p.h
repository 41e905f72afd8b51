// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "video/HRMutex_p.h"
#include "video/HRPacing_p.h"
#include "video/HRPlayhead_p.h"
#include "video/HRVideoController.h"
#include "video/HRWakeup_p.h"

namespace Hintreels {

struct HRVideoControllerPrivate
{
    HRPlayhead::Step nextStepLocked();
    quint64 pictureCount() const;
    HRVideoFrame picture(quint64 index) const;
    void pace(const HRPlayhead::Advance &advance, HRDueTime::Time came);
    void sleepUntil(HRDueTime::Time latest);

    /// Makes a change that a resting thread is to look at.
    template <typename Change>
    void change(Change make)
    {
        {
            const HRMutexLocker lock(controllerMutex);
            make();
        }
        wakeup->ring();
    }

    HRVideoSource *source = nullptr;
    // Guards playhead, shouldQuit and lastFrameDisplayTime; the playhead's position is read without
    // it. The source's locks are taken while it is held, never the other way round.
    HRMutex controllerMutex{ HRLock::controller };
    HRPlayhead playhead;
    bool shouldQuit = false;
    QDateTime lastFrameDisplayTime;
    HRDueTime due; // the controller's thread only
    // Rung by every request, and by the source at the first picture of a clip.
    std::shared_ptr<HRWakeup> wakeup = std::make_shared<HRWakeup>();
};

} // namespace Hintreels
