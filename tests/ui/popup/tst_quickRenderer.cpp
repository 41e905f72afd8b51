// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRManager.h"
#include "support/RecordingHost.h"
#include "ui/popup/HRView.h"
#include "ui/popup/quickRenderer_p.h"

#include <QQuickItem>
#include <QtTest>

using namespace Hintreels;

namespace {

struct Fixture
{
    explicit Fixture(const QVariant &isSoftwareForbidden)
        : host(settings(isSoftwareForbidden), QStringList{ packages.path() })
    {
        packages.write("A.hintreels/ui/HintreelUI.qml", rectangleQml(120, 80));
        packages.writeControl("A", "en.xml", "<hintreel key='pen'/><hintreel key='ink'/>");
        host.manager()->loadDataPath({ packages.path() });
    }

    HRContext &settings(const QVariant &isSoftwareForbidden)
    {
        context.set(forbidSoftwareRendererKey, isSoftwareForbidden);
        return context;
    }

    TestPackages packages;
    HRContext context;
    RecordingHost host;
};

} // namespace

/// Runs without OpenGL and without a backend named in the environment, as on a bare machine.
class tst_quickRenderer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // First, since what is chosen once stays chosen.
    void show_showsNothing_andSaysWhyOnce_whenSoftwareIsForbidden();
    void show_showsHint_whenSoftwareIsAllowedAgain();
    void view_paints_whenThereIsNoOpenGL();
    void view_reportsRendererErrorsInsteadOfEndingTheHost();
    void renderer_isToldByItsName_data();
    void renderer_isToldByItsName();
};

void tst_quickRenderer::show_showsNothing_andSaysWhyOnce_whenSoftwareIsForbidden()
{
    Fixture f(true);
    QVERIFY(!f.host.show("pen", QPoint(10, 10), nullptr));
    QVERIFY(!f.host.show("pen", QPoint(10, 10), nullptr));
    QVERIFY(!f.host.manager()->widget());
    QCOMPARE(f.host.takeMessages(messageWarning),
        QStringList{
            "No hints are shown: there is no OpenGL, and software rendering is forbidden" });
    QCOMPARE(QQuickWindow::sceneGraphBackend(), QString());
}

void tst_quickRenderer::show_showsHint_whenSoftwareIsAllowedAgain()
{
    Fixture f(true);
    QVERIFY(!f.host.show("pen", QPoint(10, 10), nullptr));
    f.host.context().set(forbidSoftwareRendererKey, false);
    QVERIFY(f.host.show("pen", QPoint(10, 10), nullptr));
    QCOMPARE(QQuickWindow::sceneGraphBackend(), QString("software"));
    // From here on it is chosen for the whole process.
    f.host.context().set(forbidSoftwareRendererKey, true);
    QVERIFY(f.host.show("ink", QPoint(10, 10), nullptr));
}

void tst_quickRenderer::view_paints_whenThereIsNoOpenGL()
{
    QVERIFY(qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND"));
    HRView view(nullptr, nullptr);
    view.resize(20, 10);
    QSignalSpy frames(&view, &QQuickWindow::frameSwapped);
    view.show();
    QTRY_VERIFY(!frames.isEmpty());
    QCOMPARE(view.rendererInterface()->graphicsApi(), QSGRendererInterface::Software);
}

void tst_quickRenderer::view_reportsRendererErrorsInsteadOfEndingTheHost()
{
    HRContext context;
    RecordingHost host(context, {});
    HRView view(host.manager(), nullptr);
    Q_EMIT view.sceneGraphError(QQuickWindow::ContextNotAvailable, "no context");
    QCOMPARE(host.takeMessages(messageError), QStringList{ "no context" });
}

void tst_quickRenderer::renderer_isToldByItsName_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("isOnProcessor");
    QTest::newRow("nobody") << QByteArray() << false;
    QTest::newRow("Intel") << QByteArray("Mesa Intel(R) UHD Graphics 620 (KBL GT2)") << false;
    QTest::newRow("llvmpipe") << QByteArray("llvmpipe (LLVM 15.0.6, 256 bits)") << true;
    QTest::newRow("softpipe") << QByteArray("softpipe") << true;
    QTest::newRow("classic") << QByteArray("Software Rasterizer") << true;
}

void tst_quickRenderer::renderer_isToldByItsName()
{
    QFETCH(QByteArray, name);
    QTEST(isOnProcessor(name), "isOnProcessor");
}

QTEST_MAIN(tst_quickRenderer)
#include "tst_quickRenderer.moc"
