// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "video/HRMutex_p.h"
#include "video/HRPictureTimes_p.h"
#include "video/HRVideoActionQueue_p.h"
#include "video/HRVideoFrameCache.h"

namespace Hintreels {

struct HRVideoSourcePrivate
{
    // stateMutex and frameMutex are never held together; the queue's own lock is a leaf that may be
    // taken under either.
    QUrl source; // guarded by stateMutex
    bool shouldQuit = false; // guarded by stateMutex
    HRVideoSource::Action action = HRVideoSource::idleAction; // guarded by stateMutex
    HRMutex frameMutex{ HRLock::frame };
    HRMutex stateMutex{ HRLock::state };
    HRVideoActionQueue changes;
    std::unique_ptr<HRVideoFrameCache> cache; // guarded by frameMutex, contents included
    HRPictureTimes times; // of the cache's pictures by the file; guarded by frameMutex
    bool isTimedByFile = false; // guarded by frameMutex
    std::function<void()> onFirstPicture; // guarded by frameMutex
};

} // namespace Hintreels
