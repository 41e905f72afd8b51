// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

namespace Hintreels {

/// Watches how far the stack has grown since the budget was made, on the thread that made it.
class HRStackBudget
{
public:
    /// @param bytes how far the stack may grow
    explicit HRStackBudget(quintptr bytes)
        : m_start(position())
        , m_bytes(bytes)
    {
    }

    /// Whether the calling function is still within the budget.
    bool isLeft() const
    {
        // Either way: whether a stack grows up or down is the machine's affair. The difference
        // wraps around.
        return position() - m_start + m_bytes < 2 * m_bytes;
    }

private:
    static quintptr position() { return reinterpret_cast<quintptr>(__builtin_frame_address(0)); }

    quintptr m_start;
    quintptr m_bytes;
};

} // namespace Hintreels
