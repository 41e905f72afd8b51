// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

namespace Hintreels {

/// Watches that what recurses without bounds leaves the calling thread enough of its stack.
///
/// Of what the stack had left when the budget was made, one half may be used up: the other half is
/// for what the host does meanwhile. The thread's stack is looked at once a thread. A budget is
/// used on the thread that made it.
class HRStackBudget
{
public:
    HRStackBudget();

    /// Whether the calling function is still within the budget.
    bool isLeft() const { return position() > m_end; }

private:
    static quintptr position() { return reinterpret_cast<quintptr>(__builtin_frame_address(0)); }

    quintptr m_end; // stacks grow towards lower addresses
};

} // namespace Hintreels
