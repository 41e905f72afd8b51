// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "widgets/parts/HRPart_p.h"

#include <QPoint>
#include <QVector>

#include <optional>

namespace Hintreels {

/// How the parts of one kind of widget are found.
struct HRPartKind
{
    /// The part at a position of a widget, which may be all of it; nothing for other kinds.
    using At = std::optional<HRPart> (*)(QWidget *widget, const QPoint &position);

    /// All parts of a widget of this kind.
    using All = QVector<HRPart> (*)(QWidget *widget);

    /// The part of a widget of this kind that has the keyboard while the widget has it.
    using Current = HRPart (*)(QWidget *widget);

    At at;
    All all = nullptr; ///< null where a widget is one part
    Current current = nullptr; ///< null where it is the one that is at no position
};

} // namespace Hintreels
