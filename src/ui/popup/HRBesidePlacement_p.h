// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui/popup/popupPlacement_p.h"

#include <QPointer>
#include <QRect>
#include <QWidget>

namespace Hintreels {

/// Places a popup beside the part that its hint belongs to, and knows the way from one to the
/// other.
///
/// All positions are global. The widget may be deleted at any time. GUI thread only.
class HRBesidePlacement
{
public:
    /// Takes the place for another hint.
    /// @param reference whose visible area is the part where @p part is null; may be null
    void start(QWidget *reference, const QRect &part, const QPoint &pointer);

    /// Where a popup of this size goes, near the side on which it stands already.
    /// @param offset from the pointer to a popup that has no room beside the part
    QPoint topLeftFor(const QSize &popup, const QSize &offset);

    /// What a popup may use of the screen that the pointer is on.
    QRect screen() const;

    /// Whether a position is inside the part.
    bool isOverPart(const QPoint &position) const { return m_part.contains(position); }

    /// Whether a position is on the way from the part to a popup that covers an area.
    bool leadsTo(const QRect &popup, const QPoint &position) const;

private:
    QPointer<QWidget> m_reference;
    QRect m_part;
    QPoint m_pointer;
    std::optional<HRSide> m_side;
};

} // namespace Hintreels
