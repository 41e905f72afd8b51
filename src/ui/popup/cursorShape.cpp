// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/cursorShape_p.h"

#include <QHash>

namespace Hintreels {

Qt::CursorShape cursorShapeNamed(const QString &name)
{
    static const QHash<QString, Qt::CursorShape> shapes{
        { QStringLiteral("PointingHandCursor"), Qt::PointingHandCursor },
        { QStringLiteral("IBeamCursor"), Qt::IBeamCursor },
        { QStringLiteral("BlankCursor"), Qt::BlankCursor },
    };
    return shapes.value(name, Qt::ArrowCursor);
}

} // namespace Hintreels
