// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/quickRenderer_p.h"

#include "context/setting_p.h"

#include <QOpenGLContext>
#include <QQuickWindow>

#include <utility>

namespace Hintreels {

namespace {

bool hasOpenGL()
{
    QOpenGLContext context;
    return context.create();
}

bool isSoftwareAllowed(const HRContext *settings)
{
    return !settings || !setting(*settings, forbidSoftwareRendererKey, false);
}

} // namespace

bool chooseQuickRenderer(const HRContext *settings)
{
    if (!QQuickWindow::sceneGraphBackend().isEmpty())
        return true;
    static const bool isAccelerated = hasOpenGL();
    if (isAccelerated)
        return true;
    if (!isSoftwareAllowed(settings))
        return false;
    // Once, since after a window of the host's own it is too late, and Qt warns each time.
    static bool isTold = false;
    if (!std::exchange(isTold, true))
        QQuickWindow::setSceneGraphBackend(QStringLiteral("software"));
    return true;
}

} // namespace Hintreels
