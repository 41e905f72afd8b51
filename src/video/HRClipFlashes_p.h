// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "video/HRFlashMeter_p.h"
#include "video/HRPictureTimes_p.h"

#include <functional>

namespace Hintreels {

/// Whether a clip flashes, played once or over and over. Lock-free; one thread at a time.
class HRClipFlashes
{
public:
    /// Takes the next picture of the clip.
    /// @param period in seconds, for what the file does not tell
    void add(const HRVideoFrame &picture, const HRFileTime &time, double period);
    /// Takes what comes in the first second after the end where the clip starts over: a clip of two
    /// pictures flashes only then.
    /// @param pictureAt gives a picture that was added, or a null one
    void repeat(const std::function<HRVideoFrame(size_t)> &pictureAt);

    bool isFlashing() const { return m_flashesOnce; }
    bool isFlashingRepeated() const { return m_meter.isFlashing(); }

private:
    HRFlashMeter m_meter;
    HRPictureTimes m_times;
    bool m_flashesOnce = false;
};

} // namespace Hintreels
