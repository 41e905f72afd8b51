// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

class HRContext;

namespace Hintreels {

/// @param renderer what OpenGL names as its renderer
bool isOnProcessor(const QByteArray &renderer);

/// Makes Qt Quick render in software where OpenGL is not to be had, for the whole process; also
/// where it is drawn by the processor itself on Wayland, which may crash.
///
/// Without OpenGL Qt Quick ends the whole application at the first frame, unless it was told
/// before the first of its windows. A backend that the host or its user has chosen stays, and the
/// setting forbidSoftwareRendererKey leaves everything as it is. To be called before each view is
/// constructed; looks for OpenGL only once, since a look costs an OpenGL context.
/// @param settings null for the defaults
/// @return false where the setting is all that keeps a view from being painted
bool chooseQuickRenderer(const HRContext *settings);

} // namespace Hintreels
