// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "reader/HRDesktopWishes_p.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QFileInfo>
#include <QPointer>

#include <algorithm>

namespace Hintreels {

namespace {

const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString portalInterface = QStringLiteral("org.freedesktop.portal.Settings");

const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString gnome = QStringLiteral("org.gnome.desktop.interface");
const QString gnomeAccess = QStringLiteral("org.gnome.desktop.a11y.interface");

/// A bus that is not there is not looked for: libdbus would start one.
bool hasSessionBus()
{
    const QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return address.isEmpty()
        ? !runtime.isEmpty() && QFileInfo::exists(runtime + QLatin1String("/bus"))
        : !address.startsWith(QLatin1String("autolaunch"));
}

/// The value of a key where it has the type of the default, else that.
template <typename Value>
Value typedValue(
    const HRPortalSettings &settings, const QString &space, const char *key, Value otherwise)
{
    const QVariant value = settings.value(space).value(QLatin1String(key));
    return value.userType() == qMetaTypeId<Value>() ? value.value<Value>() : otherwise;
}

/// The size at the end of a font's name, such as "Cantarell Bold 11"; 0 where there is none.
qreal sizeIn(const QString &font)
{
    return std::max(0.0, font.section(u' ', -1).toDouble());
}

bool operator==(const HRWishes &a, const HRWishes &b)
{
    return a.highContrast == b.highContrast && a.reducedMotion == b.reducedMotion
        && a.textScale == b.textScale && a.textSize == b.textSize;
}

} // namespace

HRWishes wishesIn(const HRPortalSettings &settings)
{
    HRWishes wishes;
    wishes.highContrast = typedValue(settings, appearance, "contrast", 0U) == 1
        || typedValue(settings, gnomeAccess, "high-contrast", false);
    wishes.reducedMotion = typedValue(settings, appearance, "reduced-motion", 0U) == 1
        || !typedValue(settings, gnome, "enable-animations", true);
    wishes.textScale
        = std::min(std::max(1.0, typedValue(settings, gnome, "text-scaling-factor", 1.0)),
            3.0); // or no number
    wishes.textSize = sizeIn(typedValue(settings, gnome, "font-name", QString()));
    return wishes;
}

HRDesktopWishes &HRDesktopWishes::ofApplication()
{
    static QPointer<HRDesktopWishes> wishes;
    if (!wishes)
        wishes = new HRDesktopWishes(qApp);
    return *wishes;
}

// The sender of the news is not named: Qt would wait for the bus to tell whose name that is. So
// news are believed from nobody, and the portal is asked what has changed.
void HRDesktopWishes::follow()
{
    if (m_follows || !hasSessionBus())
        return;
    m_follows = true;
    QDBusConnection::sessionBus().connect(QString(), portalPath, portalInterface,
        QStringLiteral("SettingChanged"), this, SLOT(ask()));
    ask();
}

/// The last answer counts.
void HRDesktopWishes::ask()
{
    QDBusMessage question = QDBusMessage::createMethodCall(
        portalService, portalPath, portalInterface, QStringLiteral("ReadAll"));
    question << QStringList{ appearance, gnome, gnomeAccess };
    auto *call
        = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call, number = ++m_asked] {
        call->deleteLater();
        if (number == m_asked)
            take(call->reply());
    });
}

void HRDesktopWishes::take(const QDBusMessage &answer)
{
    if (answer.type() != QDBusMessage::ReplyMessage
        || answer.signature() != QLatin1String("a{sa{sv}}"))
        return;
    const HRWishes wishes = wishesIn(qdbus_cast<HRPortalSettings>(answer.arguments().value(0)));
    if (wishes == m_wishes)
        return;
    m_wishes = wishes;
    Q_EMIT changed();
}

} // namespace Hintreels
