// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/reader/HRSceneSettings_p.h"

#include "context/setting_p.h"
#include "gates/HRPackageRules_p.h"
#include "reader/HRDesktopWishes_p.h"
#include "reader/readerSettings_p.h"
#include "ui/reader/readableColor_p.h"

#include <QApplication>
#include <QFontInfo>
#include <QStyle>

#include <algorithm>

namespace Hintreels {

namespace {

// Usual palettes have up to 18.3, yellow on black has 19.6.
constexpr qreal contrastOfHighPalettes = 19.0;

bool isHigh(const QPalette &palette, QPalette::ColorRole text, QPalette::ColorRole ground)
{
    return contrastRatio(palette.color(text), palette.color(ground)) >= contrastOfHighPalettes;
}

/// Where all grounds are, and not only that of text fields.
bool hasHighContrast(const QPalette &palette)
{
    return isHigh(palette, QPalette::WindowText, QPalette::Window)
        && isHigh(palette, QPalette::Text, QPalette::Base)
        && isHigh(palette, QPalette::ButtonText, QPalette::Button);
}

// Desktops that are asked to move less let their style animate for no time at all.
bool styleReducesMotion()
{
    return QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) == 0;
}

HRWishes desktopsWishes()
{
    HRDesktopWishes &desktop = HRDesktopWishes::ofApplication();
    desktop.follow();
    HRWishes wishes = desktop.wishes();
    wishes.highContrast = wishes.highContrast || hasHighContrast(QGuiApplication::palette());
    wishes.reducedMotion = wishes.reducedMotion || styleReducesMotion();
    return wishes;
}

HRSceneSettings wishedSettings(const HRWishes &wishes, const QVector<QLocale> &locales)
{
    HRSceneSettings settings{ locales, wishes.reducedMotion };
    settings.highContrast = wishes.highContrast;
    settings.textScale = missingTextScale(
        wishes, QGuiApplication::platformName(), QFontInfo(QGuiApplication::font()).pixelSize());
    return settings;
}

void takeDecisions(HRSceneSettings &settings, const HRReaderSettings &reader)
{
    settings.detail = reader.detail();
    settings.beginsSmall = [guarded = QPointer<const HRReaderSettings>(&reader)](
                               const QString &key) { return guarded && guarded->beginsSmall(key); };
    settings.playsClips = reader.clips() != HRReaderSettings::clipsOnRequest;
    settings.repeatsClips = reader.clips() == HRReaderSettings::clipsByThemselves;
    settings.showsCaptions = reader.areCaptionsShown();
    settings.textScale *= reader.textSize() / 100.0;
}

/// No clip moves by itself where nothing is to.
void keepStill(HRSceneSettings &settings)
{
    settings.playsClips = settings.playsClips && !settings.reducedMotion;
    settings.repeatsClips = settings.repeatsClips && !settings.reducedMotion;
}

} // namespace

qreal missingTextScale(const HRWishes &wishes, const QString &platform, qreal hostsSize)
{
    constexpr qreal pixelsOfPoint = 96.0 / 72.0;
    if (platform == QLatin1String("xcb") || hostsSize <= 0)
        return 1.0;
    const qreal wanted = wishes.textSize * pixelsOfPoint * wishes.textScale;
    return std::clamp(wanted / hostsSize, 1.0, wishes.textScale);
}

HRSceneSettings sceneSettings()
{
    HRSceneSettings settings = wishedSettings(desktopsWishes(), { QLocale::system() });
    keepStill(settings);
    return settings;
}

HRSceneSettings sceneSettings(const HRContext &context, const QLocale &locale)
{
    const QLocale fallback(setting(context, fallbackLocaleKey, QStringLiteral("en_US")));
    HRSceneSettings settings = wishedSettings(desktopsWishes(), { locale, fallback });
    settings.reducedMotion = setting(context, reducedMotionKey, settings.reducedMotion);
    settings.showsTargets = packageRules(context).fromStrangers;
    if (const HRReaderSettings *reader = readerSettings(&context))
        takeDecisions(settings, *reader);
    keepStill(settings);
    return settings;
}

} // namespace Hintreels
