// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/RecordingHost.h"
#include "ui/HRView.h"

#include <QQuickItem>
#include <QtTest>

using namespace Hintreels;

/// Runs without OpenGL and without a backend named in the environment, as on a bare machine.
class tst_HRQuickRenderer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void view_paints_whenThereIsNoOpenGL();
    void view_reportsRendererErrorsInsteadOfEndingTheHost();
};

void tst_HRQuickRenderer::view_paints_whenThereIsNoOpenGL()
{
    QVERIFY(qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND"));
    HRView view(nullptr, nullptr);
    view.resize(20, 10);
    QSignalSpy frames(&view, &QQuickWindow::frameSwapped);
    view.show();
    QTRY_VERIFY(!frames.isEmpty());
    QCOMPARE(view.rendererInterface()->graphicsApi(), QSGRendererInterface::Software);
}

void tst_HRQuickRenderer::view_reportsRendererErrorsInsteadOfEndingTheHost()
{
    HRContext context;
    RecordingHost host(context, {});
    HRView view(host.manager(), nullptr);
    Q_EMIT view.sceneGraphError(QQuickWindow::ContextNotAvailable, "no context");
    QCOMPARE(host.takeMessages(messageError), QStringList{ "no context" });
}

QTEST_MAIN(tst_HRQuickRenderer)
#include "tst_HRQuickRenderer.moc"
