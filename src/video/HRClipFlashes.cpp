// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRClipFlashes_p.h"

namespace Hintreels {

namespace {

// Pictures of one second; whoever shows more has one in less than 4 ms.
constexpr size_t mostRepeated = 256;

} // namespace

void HRClipFlashes::add(const HRVideoFrame &picture, const HRFileTime &time, double period)
{
    m_times.append(time, period);
    m_meter.add(picture, m_times.start(m_times.count() - 1));
    m_flashesOnce = m_meter.isFlashing();
}

void HRClipFlashes::repeat(const std::function<HRVideoFrame(size_t)> &pictureAt)
{
    const size_t count = m_times.count();
    const double end = m_times.length();
    for (size_t i = 0; count > 0 && i < mostRepeated; ++i) {
        const size_t round = i / count + 1;
        const double seconds = double(round) * end + m_times.start(i % count);
        if (seconds >= end + 1.0)
            return;
        m_meter.add(pictureAt(i % count), seconds);
    }
}

} // namespace Hintreels
