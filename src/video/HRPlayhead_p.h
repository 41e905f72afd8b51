// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "video/HRVideoController.h"

#include <atomic>

namespace Hintreels {

/// Where a controller stands in its clip, and what it is to do next.
///
/// Every operation that depends on it is told how many pictures are decoded so far. Lock-free; only
/// the position may be read by others while one thread is at work.
class HRPlayhead
{
public:
    /// What one pass of the controller's thread finds to do.
    enum Step
    {
        present, ///< the next picture of a clip that plays
        showStill, ///< the picture at the position of a clip that is paused
        announceEnd, ///< the position has reached the last picture, and the clip is paused now
        rest
    };

    /// What presenting a picture comes to.
    struct Advance
    {
        bool displays = false; ///< there is a picture to fetch
        bool moves = false; ///< the position has moved on
        bool paces = false; ///< the next picture waits for its time
        quint64 displayed = 0; ///< index of the picture fetched last
        quint64 position = 0; ///< before it moved on
        quint64 seen = 0; ///< index of the picture that is to be fetched now
    };

    quint64 position() const { return m_position; }
    void setPosition(quint64 position) { m_position = position; }
    /// Goes to picture @p index by hand, at most to the last one.
    void goTo(quint64 index, quint64 count);

    HRVideoController::State state() const { return m_state; }
    void setState(HRVideoController::State state) { m_state = state; }
    /// @return whether it starts over
    bool play(quint64 count);
    /// The whole clip is decoded.
    /// @return whether that pauses
    bool endDecoding();

    bool isScrubbing() const { return m_scrubbing; }
    void setScrubbing(bool scrubbing) { m_scrubbing = scrubbing; }
    void setAwaitsDecoder(bool awaits) { m_awaitsDecoder = awaits; }
    void setNeedsPicture(bool needs) { m_needsPicture = needs; }

    Step nextStep(quint64 count);
    /// @param byFile whether each picture is seen for a time of its own, the one at which the clip
    /// begins to play included; otherwise the next one comes at once
    Advance advance(quint64 count, bool byFile = false);
    /// The picture at the position counts as shown.
    void fetch() { m_displayed = m_position; }
    /// Whether the position was set by hand since the last picture.
    bool hasMoved() const { return m_moved; }

private:
    void goQuietlyTo(quint64 index, quint64 count);

    std::atomic<quint64> m_position{ 0 };
    quint64 m_displayed = 0;
    HRVideoController::State m_state = HRVideoController::controllerPaused;
    bool m_needsPicture = true;
    bool m_scrubbing = false;
    bool m_awaitsDecoder = false;
    bool m_moved = false;
    bool m_holds = false; // the picture at the position has not had its time yet
};

} // namespace Hintreels
