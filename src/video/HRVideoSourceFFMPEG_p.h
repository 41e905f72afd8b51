// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "video/HRClipFlashes_p.h"
#include "video/HRClip_p.h"
#include "video/HRMutex_p.h"
#include "video/HRVideoClock_p.h"
#include "video/HRVideoSourceFFMPEG.h"

#include <atomic>

namespace Hintreels {

/// What the source tells others of its clip.
struct HRClipStatus
{
    HRClipFacts facts;
    double progress = 0.0; // of decoding, 0 to 1
    bool open = false;
    bool flashing = false; // when it is played once
    bool flashingRepeated = false;
};

struct HRVideoSourceFFMPEGPrivate
{
    explicit HRVideoSourceFFMPEGPrivate(HRVideoSourceFFMPEG *source);

    // Order: decoderMutex, then statusMutex or the base's stateMutex. The base's frameMutex is
    // never held together with decoderMutex. decoderMutex is held while a picture is read, decoded
    // and converted; what others ask for therefore stands in status, under a lock that is held
    // shortly.
    HRMutex decoderMutex{ HRLock::decoder };
    HRClip clip; // guarded by decoderMutex
    QString path; // of that clip; guarded by decoderMutex
    HRVideoClock clock; // guarded by decoderMutex
    HRClipFlashes flashes; // of the source's thread only
    HRMutex statusMutex{ HRLock::status };
    HRClipStatus status; // guarded by statusMutex
    std::atomic<bool> decodingPaused{ false };
    std::atomic<bool> colorsByFile{ false };
    std::atomic<int> largestPicture{ HRVideoSourceFFMPEG::standardLargestPicture }; // megapixels

    HRClipStatus currentStatus();
    /// While the clip is open.
    void publishFacts();
    void publishProgress(double pts);
    double period(); // seconds; 0 where it is not known
    /// @return whether more is known now than before
    bool publishFlashes();
    /// Closes the clip. Its rates and its progress stay known; its size does not.
    void release();
};

} // namespace Hintreels
