// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

namespace Hintreels {

/// The changes of one value up and down, from peak to valley and back, and when they came.
///
/// A change counts where the value goes by a least step from the last peak or valley, and where its
/// valley counts. Lock-free.
class HRSwings
{
public:
    /// Takes the value at a time that is no earlier than the one before.
    /// @param mayBeLow whether a valley here counts
    /// @param step the least change that counts
    /// @return true where another change is complete
    bool follow(float value, bool mayBeLow, float step, double seconds);

    /// Changes since @p seconds, which is not among them.
    int countSince(double seconds) const;

private:
    struct Extreme
    {
        float value;
        bool mayBeLow;
    };

    void widen(const Extreme &now);
    bool isChange(const Extreme &now, float step) const;
    void turn(const Extreme &now, double seconds);

    bool m_isBegun = false;
    bool m_wasRise = false; // the last change
    bool m_wasFall = false;
    Extreme m_low = { 0, false }; // since the last change
    Extreme m_high = { 0, false };
    std::vector<double> m_times; // of the changes in the last second
};

} // namespace Hintreels
