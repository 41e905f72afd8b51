// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRPlayhead_p.h"

#include <utility>

namespace Hintreels {

void HRPlayhead::goTo(quint64 index, quint64 count)
{
    goQuietlyTo(index, count);
    m_moved = true;
}

bool HRPlayhead::play(quint64 count)
{
    m_state = HRVideoController::controllerPlaying;
    m_holds = true;
    const bool hasCaughtUp = m_awaitsDecoder && m_position == count;
    const bool startsOver = m_position >= count && !hasCaughtUp;
    if (startsOver)
        goQuietlyTo(0, count);
    return startsOver;
}

bool HRPlayhead::endDecoding()
{
    const bool pauses = !m_scrubbing && !m_awaitsDecoder;
    if (pauses)
        m_state = HRVideoController::controllerPaused;
    return pauses;
}

HRPlayhead::Step HRPlayhead::nextStep(quint64 count)
{
    const bool isThere = m_position < count;
    if (m_state == HRVideoController::controllerPaused)
        return m_needsPicture && isThere ? showStill : rest;
    if (isThere) {
        m_needsPicture = false;
        return present;
    }
    if (count < m_position || m_awaitsDecoder)
        return rest;
    m_state = HRVideoController::controllerPaused;
    return announceEnd;
}

HRPlayhead::Advance HRPlayhead::advance(quint64 count, bool byFile)
{
    m_moved = false;
    Advance advance;
    advance.displayed = m_displayed;
    advance.position = advance.seen = m_position;
    // Paused since the step was chosen: the picture is shown, and waits for nothing.
    advance.displays = m_state != HRVideoController::controllerPlaying;
    if (advance.displays || (m_displayed == m_position && m_displayed >= count))
        return advance;
    advance.displays = m_position < count;
    const bool holds = std::exchange(m_holds, false) && byFile;
    advance.moves = advance.displays && !holds;
    // Before the picture goes out: who fetches it finds the new position.
    if (advance.moves)
        advance.seen = ++m_position;
    // One that is still to be decoded has its time when it comes.
    const bool isThere = m_position < count;
    m_holds = !isThere;
    advance.paces = isThere || !byFile;
    return advance;
}

/// Without ending the wait for the picture that is due.
void HRPlayhead::goQuietlyTo(quint64 index, quint64 count)
{
    // Without any picture this wraps round to the largest number, as the controller promises.
    m_position = index < count ? index : count - 1;
    // The picture there counts as one step ahead of what is shown.
    m_displayed = m_position - 1;
    m_needsPicture = true;
    m_holds = true;
}

} // namespace Hintreels
