// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRVideoSourceFFMPEG_p.h"

#include <utility>

namespace Hintreels {

HRVideoSourceFFMPEGPrivate::HRVideoSourceFFMPEGPrivate(HRVideoSourceFFMPEG *source)
    : clip([source] { return source->shouldQuit(); })
{
}

HRClipStatus HRVideoSourceFFMPEGPrivate::currentStatus()
{
    const HRMutexLocker lock(statusMutex);
    return status;
}

void HRVideoSourceFFMPEGPrivate::publishFacts()
{
    const HRMutexLocker lock(statusMutex);
    status.facts = clip.facts();
    status.open = true;
}

void HRVideoSourceFFMPEGPrivate::publishProgress(double pts)
{
    const HRMutexLocker lock(statusMutex);
    const double duration = status.facts.duration;
    status.progress = duration > 0.0 ? pts / duration : 0.0;
}

double HRVideoSourceFFMPEGPrivate::period()
{
    const double rate = currentStatus().facts.frameRate;
    return rate > 0.0 ? 1.0 / rate : 0.0;
}

bool HRVideoSourceFFMPEGPrivate::publishFlashes()
{
    const HRMutexLocker lock(statusMutex);
    const bool once = std::exchange(status.flashing, flashes.isFlashing());
    const bool repeated = std::exchange(status.flashingRepeated, flashes.isFlashingRepeated());
    return once != status.flashing || repeated != status.flashingRepeated;
}

void HRVideoSourceFFMPEGPrivate::release()
{
    clip.close();
    const HRMutexLocker lock(statusMutex);
    status.open = false;
}

} // namespace Hintreels
