// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "support/RecordingHost.h"
#include "ui/popup/HRView.h"

#include <QtTest>

using namespace Hintreels;

/// Runs without OpenGL and without a backend named in the environment, and in a process of its own:
/// with the first view of all it is settled for good what renders.
class tst_HRForbiddenRenderer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void view_leavesTheRendererAlone();
};

void tst_HRForbiddenRenderer::view_leavesTheRendererAlone()
{
    HRContext context;
    context.set(forbidSoftwareRendererKey, true);
    RecordingHost host(context, {});
    const HRView view(host.manager(), nullptr);
    // Qt 6 itself knows that this platform has nothing else.
    const QString chosenByQt = QT_VERSION_MAJOR >= 6 ? "software" : "";
    QCOMPARE(QQuickWindow::sceneGraphBackend(), chosenByQt);
    QCOMPARE(host.messages.size(), 0);
}

QTEST_MAIN(tst_HRForbiddenRenderer)
#include "tst_HRForbiddenRenderer.moc"
