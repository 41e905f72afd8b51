// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRHostDescription_p.h"

namespace Hintreels {

void HRHostDescription::describe(QWidget *widget, const QString &description)
{
    restore();
    if (!widget)
        return;
    m_widget = widget;
    m_own = widget->accessibleDescription();
    m_lent = description;
    widget->setAccessibleDescription(description);
}

void HRHostDescription::restore()
{
    if (m_widget && m_widget->accessibleDescription() == m_lent)
        m_widget->setAccessibleDescription(m_own);
    m_widget.clear();
}

} // namespace Hintreels
