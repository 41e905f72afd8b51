// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QPointer>
#include <QString>

namespace Hintreels {

class HRWidget;
class HRXmlElement;

/// The popups that their readers have reserved, which belong to others.
///
/// GUI thread only.
class HRReservedPopups
{
public:
    void append(HRWidget *popup);

    /// The first popup that shows content for a key; null where none does.
    HRWidget *popup(const QString &key) const;

    /// The content of that popup.
    HRXmlElement *content(const QString &key) const;

    void raise();

    /// Sets or clears the window flag, which hides a window, and shows each again.
    void setStayOnTop(bool on);

private:
    QList<HRWidget *> livePopups();

    QList<QPointer<HRWidget>> m_popups;
};

} // namespace Hintreels
