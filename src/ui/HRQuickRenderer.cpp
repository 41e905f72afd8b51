// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/HRQuickRenderer_p.h"

#include <QOpenGLContext>
#include <QQuickWindow>

namespace Hintreels {

namespace {

bool hasOpenGL()
{
    QOpenGLContext context;
    return context.create();
}

} // namespace

void chooseQuickRenderer()
{
    static const bool chosen = [] {
        if (QQuickWindow::sceneGraphBackend().isEmpty() && !hasOpenGL())
            QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
        return true;
    }();
    Q_UNUSED(chosen)
}

} // namespace Hintreels
