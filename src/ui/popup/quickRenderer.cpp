// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/quickRenderer_p.h"

#include "context/setting_p.h"
#include "ui/popup/wayland_p.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QQuickWindow>

#include <algorithm>
#include <iterator>
#include <utility>

namespace Hintreels {

namespace {

/// What draws for OpenGL, as it names itself.
QByteArray rendererOf(QOpenGLContext &context)
{
    QOffscreenSurface surface;
    surface.setFormat(context.format());
    surface.create();
    if (!context.makeCurrent(&surface))
        return {};
    const GLubyte *name = context.functions()->glGetString(GL_RENDERER);
    return QByteArray(reinterpret_cast<const char *>(name));
}

bool hasOpenGL()
{
    QOpenGLContext context;
    return context.create();
}

/// On Wayland Mesa's renderers on the processor were seen to crash when a view was hidden whose
/// thread was just handing over a picture: the surface had no buffer left (Mesa 22.3.6, Qt 5.15.8).
bool isRiskyOpenGL()
{
    QOpenGLContext context;
    return isOnWayland() && context.create() && isOnProcessor(rendererOf(context));
}

bool isSoftwareAllowed(const HRContext *settings)
{
    return !settings || !setting(*settings, forbidSoftwareRendererKey, false);
}

} // namespace

bool isOnProcessor(const QByteArray &renderer)
{
    static const char *const names[] = { "llvmpipe", "softpipe", "swrast", "Software Rasterizer" };
    return std::any_of(std::begin(names), std::end(names),
        [&](const char *name) { return renderer.contains(name); });
}

bool chooseQuickRenderer(const HRContext *settings)
{
    if (!QQuickWindow::sceneGraphBackend().isEmpty())
        return true;
    static const bool isThere = hasOpenGL();
    static const bool isSafe = isThere && !isRiskyOpenGL();
    if (isSafe)
        return true;
    if (!isSoftwareAllowed(settings))
        return isThere;
    // Once, since after a window of the host's own it is too late, and Qt warns each time.
    static bool isTold = false;
    if (!std::exchange(isTold, true))
        QQuickWindow::setSceneGraphBackend(QStringLiteral("software"));
    return true;
}

} // namespace Hintreels
