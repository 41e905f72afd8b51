// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/HRSceneSettings_p.h"

#include "context/setting_p.h"
#include "gates/HRPackageRules_p.h"
#include "reader/readerSettings_p.h"

#include <QApplication>
#include <QStyle>

namespace Hintreels {

namespace {

// Desktops that are asked to move less let their style animate for no time at all.
bool desktopReducesMotion()
{
    return QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) == 0;
}

void takeDecisions(HRSceneSettings &settings, const HRReaderSettings &reader)
{
    settings.detail = reader.detail();
    settings.beginsSmall = [guarded = QPointer<const HRReaderSettings>(&reader)](
                               const QString &key) { return guarded && guarded->beginsSmall(key); };
    settings.playsClips = reader.clips() != HRReaderSettings::clipsOnRequest;
    settings.repeatsClips = reader.clips() == HRReaderSettings::clipsByThemselves;
    settings.showsCaptions = reader.areCaptionsShown();
    settings.textScale = reader.textSize() / 100.0;
}

/// No clip moves by itself where nothing is to.
void keepStill(HRSceneSettings &settings)
{
    settings.playsClips = settings.playsClips && !settings.reducedMotion;
    settings.repeatsClips = settings.repeatsClips && !settings.reducedMotion;
}

} // namespace

HRSceneSettings sceneSettings()
{
    HRSceneSettings settings{ { QLocale::system() }, desktopReducesMotion() };
    keepStill(settings);
    return settings;
}

HRSceneSettings sceneSettings(const HRContext &context, const QLocale &locale)
{
    const QLocale fallback(setting(context, fallbackLocaleKey, QStringLiteral("en_US")));
    HRSceneSettings settings{ { locale, fallback },
        setting(context, reducedMotionKey, desktopReducesMotion()),
        packageRules(context).fromStrangers };
    if (const HRReaderSettings *reader = readerSettings(&context))
        takeDecisions(settings, *reader);
    keepStill(settings);
    return settings;
}

} // namespace Hintreels
