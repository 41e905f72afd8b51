// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <Qt>

namespace Hintreels {

/// Keeps count of the application override cursors that one popup has pushed.
///
/// Scripts push a cursor when the pointer enters something and pop it when it leaves; a popup that
/// hides under the pointer gets no such second event, or gets it late. Releasing takes the pushed
/// cursors back, and the late restores are then swallowed, so that they do not pop the host's.
class HROverrideCursors
{
public:
    void push(Qt::CursorShape shape);

    /// Pops a cursor pushed here; else swallows a restore that comes late; else pops as it is.
    void restore();

    /// Pops all cursors pushed here and not restored.
    void release();

private:
    int m_pushed = 0;
    int m_lateRestores = 0;
};

} // namespace Hintreels
