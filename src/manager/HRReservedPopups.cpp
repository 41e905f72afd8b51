// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRReservedPopups_p.h"

#include "manager/HRPopupPresenter_p.h"

namespace Hintreels {

void HRReservedPopups::append(HRWidget *popup)
{
    m_popups.append(popup);
}

HRWidget *HRReservedPopups::popup(const QString &key) const
{
    for (const QPointer<HRWidget> &popup : m_popups) {
        if (shownContent(popup, key))
            return popup;
    }
    return nullptr;
}

HRXmlElement *HRReservedPopups::content(const QString &key) const
{
    return shownContent(popup(key), key);
}

void HRReservedPopups::raise()
{
    const QList<HRWidget *> popups = livePopups();
    for (HRWidget *popup : popups)
        popup->raise();
}

void HRReservedPopups::setStayOnTop(bool on)
{
    const QList<HRWidget *> popups = livePopups();
    for (HRWidget *popup : popups) {
        Qt::WindowFlags flags = popup->windowFlags();
        popup->setWindowFlags(flags.setFlag(Qt::WindowStaysOnTopHint, on));
        popup->show();
    }
}

// Last reserved first, and forgets those that are gone.
QList<HRWidget *> HRReservedPopups::livePopups()
{
    m_popups.removeAll(QPointer<HRWidget>());
    QList<HRWidget *> popups;
    for (auto popup = m_popups.crbegin(); popup != m_popups.crend(); ++popup)
        popups.append(*popup);
    return popups;
}

} // namespace Hintreels
