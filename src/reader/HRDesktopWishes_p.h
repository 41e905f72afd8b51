// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QObject>
#include <QVariantMap>

QT_BEGIN_NAMESPACE
class QDBusMessage;
QT_END_NAMESPACE

namespace Hintreels {

/// What a desktop asks of programs for its user; nothing, as long as it has not said so.
struct HRWishes
{
    bool highContrast = false;
    bool reducedMotion = false;
    qreal textScale = 1.0; ///< of text, from 1 to 3
    qreal textSize = 0.0; ///< of the desktop's own font in points, before it is scaled; 0: unknown
};

/// The settings of a portal: values by key by namespace.
using HRPortalSettings = QMap<QString, QVariantMap>;

/// What a portal's settings wish. What is missing, or of another type, wishes nothing.
///
/// "org.freedesktop.appearance" is the documented namespace, with "contrast" and "reduced-motion";
/// portals for GNOME show the settings of that desktop, too: "org.gnome.desktop.interface" and
/// "org.gnome.desktop.a11y.interface".
HRWishes wishesIn(const HRPortalSettings &settings);

/// Asks the desktop's portal for its wishes: "org.freedesktop.portal.Settings" on the session bus.
///
/// Nothing waits for an answer: until one comes, nothing is wished. A portal that fails or answers
/// something else changes nothing. Without a session bus nobody is asked, and none is started.
/// GUI thread only.
class HRDesktopWishes : public QObject
{
    Q_OBJECT

public:
    /// The one of the application, which owns it. There has to be an application.
    static HRDesktopWishes &ofApplication();

    using QObject::QObject;

    /// Begins to ask, unless that has been done: now, and whenever the portal tells of a change.
    void follow();

    const HRWishes &wishes() const { return m_wishes; }

Q_SIGNALS:
    /// wishes() has others now.
    void changed();

private Q_SLOTS:
    void ask();

private:
    void take(const QDBusMessage &answer);

    HRWishes m_wishes;
    bool m_follows = false;
    int m_asked = 0; // times
};

} // namespace Hintreels
