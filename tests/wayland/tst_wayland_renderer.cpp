// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"
#include "wayland/WestonHost.h"
#include "x11/RealInput.h"

#include <QtTest>

using namespace Hintreels;

/// Runs without a backend named in the environment, as on a reader's machine; its OpenGL is drawn
/// by the processor.
class tst_wayland_renderer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hint_isPaintedWithoutOpenGL_ofTheProcessor();
};

void tst_wayland_renderer::hint_isPaintedWithoutOpenGL_ofTheProcessor()
{
    WestonHost host([](HRContext &context) { context.set(forbidSoftwareRendererKey, false); });
    QVERIFY(host.hover(host.red));
    QVERIFY(eventually([&] { return showsHint(host.popup(), Qt::red); }));
    QCOMPARE(
        host.popup().view()->rendererInterface()->graphicsApi(), QSGRendererInterface::Software);
}

QTEST_MAIN(tst_wayland_renderer)
#include "tst_wayland_renderer.moc"
