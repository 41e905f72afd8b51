// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace Hintreels {

/// What a hint may still hold, while it is read.
class HRHintRoom
{
public:
    /// What there is room for of a text, and takes that room.
    /// @param longest UTF-16 units that this text may have, however much room there is
    QString take(const QString &text, int longest);

    /// Takes room for what is no text.
    /// @param size in UTF-16 units of text that would take as much
    void take(int size);

    bool isFull() const { return m_characters <= 0; }

private:
    int m_characters = 30'000;
};

} // namespace Hintreels
