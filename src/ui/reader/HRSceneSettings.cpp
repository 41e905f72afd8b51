// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/HRSceneSettings_p.h"

#include "context/setting_p.h"
#include "gates/HRPackageRules_p.h"

#include <QApplication>
#include <QStyle>

namespace Hintreels {

namespace {

// Desktops that are asked to move less let their style animate for no time at all.
bool desktopReducesMotion()
{
    return QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) == 0;
}

} // namespace

HRSceneSettings sceneSettings()
{
    return { { QLocale::system() }, desktopReducesMotion() };
}

HRSceneSettings sceneSettings(const HRContext &context, const QLocale &locale)
{
    const QLocale fallback(setting(context, fallbackLocaleKey, QStringLiteral("en_US")));
    return { { locale, fallback }, setting(context, reducedMotionKey, desktopReducesMotion()),
        packageRules(context).fromStrangers };
}

} // namespace Hintreels
