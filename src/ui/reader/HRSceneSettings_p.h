// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "reader/HRReaderSettings.h"

#include <QLocale>
#include <QVector>

#include <functional>

class HRContext;

namespace Hintreels {

/// What the scene of a popup goes by.
struct HRSceneSettings
{
    QVector<QLocale> locales; ///< the best first; never empty
    bool reducedMotion; ///< nothing is to move unless the reader asks for it
    bool showsTargets = false; ///< links tell where they lead: strangers have written them
    HRReaderSettings::Detail detail = HRReaderSettings::fullDetail;
    std::function<bool(const QString &key)> beginsSmall = {}; ///< with its summary; null: none does
    bool playsClips = true; ///< by themselves
    bool repeatsClips = true; ///< where their hint says so
    bool showsCaptions = true;
    double textScale = 1.0;
    bool highContrast = false;
};

struct HRWishes;

/// What is missing to the host's text to be as large as the desktop wishes.
///
/// On X11 nothing is: the desktop puts its factor into the resource Xft.dpi, by which Qt makes
/// pixels of points. On Wayland Qt follows where its environment or the desktop's theme has it do
/// so, which the size of the host's text tells: it grows up to that of the desktop's own, and by no
/// more than the factor.
/// @param platform as QGuiApplication names it
/// @param hostsSize in pixels
qreal missingTextScale(const HRWishes &wishes, const QString &platform, qreal hostsSize);

/// The settings as they are now.
/// @param locale that of translations
HRSceneSettings sceneSettings(const HRContext &context, const QLocale &locale);

/// Those of the desktop.
HRSceneSettings sceneSettings();

} // namespace Hintreels
