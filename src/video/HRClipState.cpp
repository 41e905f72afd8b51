// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "video/HRClipState_p.h"

#include <QtGlobal>

namespace Hintreels {

HRClipState::Action HRClipState::apply(HRClipEvent event)
{
    const bool played = plays();
    const int roundsBefore = m_rounds;
    change(event);
    // At its end the player has paused by itself.
    const bool hasFinished = m_rounds != roundsBefore;
    if (!plays())
        return played && !hasFinished ? pause : nothing;
    m_atEnd = false; // whoever plays there starts over
    return played && !hasFinished ? nothing : play;
}

void HRClipState::change(HRClipEvent event)
{
    switch (event) {
    case HRClipEvent::opened:
        m_decoded = false;
        Q_FALLTHROUGH();
    case HRClipEvent::rewound:
        m_pictured = m_atEnd = false;
        break;
    case HRClipEvent::pictureShown:
        m_pictured = true;
        break;
    case HRClipEvent::decoded:
        m_decoded = true;
        break;
    case HRClipEvent::endReached:
        finish();
        break;
    case HRClipEvent::moved:
        m_atEnd = false;
        break;
    case HRClipEvent::wanted:
    case HRClipEvent::unwanted:
        m_wanted = event == HRClipEvent::wanted;
        break;
    case HRClipEvent::scrubbed:
    case HRClipEvent::released:
        m_scrubbed = event == HRClipEvent::scrubbed;
        break;
    case HRClipEvent::seen:
    case HRClipEvent::hidden:
        m_seen = event == HRClipEvent::seen;
        break;
    }
}

void HRClipState::finish()
{
    // Else it has caught up with the decoder, or was told so before.
    if (!m_decoded || m_atEnd)
        return;
    m_atEnd = true;
    m_wanted = m_wanted && m_looping;
    ++m_rounds;
}

} // namespace Hintreels
