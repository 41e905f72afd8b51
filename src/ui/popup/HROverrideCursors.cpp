// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HROverrideCursors_p.h"

#include <QCursor>
#include <QGuiApplication>

namespace Hintreels {

void HROverrideCursors::push(Qt::CursorShape shape)
{
    QGuiApplication::setOverrideCursor(shape);
    ++m_pushed;
}

void HROverrideCursors::restore()
{
    // Own cursors first: a late restore that never comes must not leave a later cursor standing.
    if (m_pushed == 0 && m_lateRestores > 0) {
        --m_lateRestores;
        return;
    }
    if (m_pushed > 0)
        --m_pushed;
    QGuiApplication::restoreOverrideCursor();
}

void HROverrideCursors::release()
{
    for (; m_pushed > 0; --m_pushed, ++m_lateRestores)
        QGuiApplication::restoreOverrideCursor();
}

} // namespace Hintreels
