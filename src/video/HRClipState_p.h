// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

namespace Hintreels {

/// What happens to a clip, and what is wanted of it.
enum class HRClipEvent
{
    opened, ///< another clip was asked for
    rewound, ///< it was asked for again, and goes back to its first picture
    pictureShown, ///< by which its size is known
    decoded, ///< to its last picture
    endReached, ///< playing has come to the last picture that is decoded
    moved, ///< to a position by hand, or played by hand
    wanted, ///< to play, whenever it can
    unwanted,
    scrubbed, ///< its pictures are gone through by hand
    released,
    seen, ///< its window is shown
    hidden
};

/// What a clip that is to play by itself is at: from its first picture, waiting for the decoder, to
/// its end and over again. Knows no player and no clip; it is told what happens, and says what to
/// do.
class HRClipState
{
public:
    enum Action
    {
        nothing,
        play,
        pause
    };

    /// @return what the player is to do now
    Action apply(HRClipEvent event);

    /// Over again at its end, instead of being wanted no more.
    bool isLooping() const { return m_looping; }
    void setLooping(bool looping) { m_looping = looping; }

    bool isWanted() const { return m_wanted; }
    bool isDecoded() const { return m_decoded; }
    /// Whether it rests behind its last picture.
    bool isEnded() const { return m_atEnd && !m_wanted; }
    /// How often it came to its end.
    int rounds() const { return m_rounds; }
    /// Whether it is to play now.
    bool plays() const { return m_wanted && m_pictured && m_seen && !m_scrubbed; }
    bool hasPicture() const { return m_pictured; }
    /// Whether the last picture that is decoded is to be waited at for further ones.
    bool awaitsDecoder() const { return m_wanted && !m_decoded; }

private:
    void change(HRClipEvent event);
    void finish();

    bool m_looping = false;
    bool m_wanted = false;
    bool m_pictured = false;
    bool m_decoded = false;
    bool m_atEnd = false;
    bool m_scrubbed = false;
    bool m_seen = false;
    int m_rounds = 0;
};

} // namespace Hintreels
