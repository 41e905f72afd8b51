// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRManager.h"
#include "support/HostSnapshot.h"
#include "support/Promises.h"
#include "support/RecordingHost.h"
#include "support/TestClip.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"

#include <QtTest>

#include <memory>

extern "C" {
#include <libavutil/log.h>
}

using namespace Hintreels;

/// The library comes and goes a thousand times, and leaves its host as it was.
class tst_HostState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void host_isAsItWas_afterThousandInterfaces();
};

namespace {

constexpr int cycles = 1000;

/// A window of the host, which counts the tooltips that it is asked for.
class HostWindow : public QWidget
{
public:
    int toolTips = 0;

protected:
    bool event(QEvent *event) override
    {
        toolTips += event->type() == QEvent::ToolTip ? 1 : 0;
        return QWidget::event(event);
    }
};

struct Fixture
{
    Fixture()
    {
        packages.writeControl("Test", "en.xml",
            "<hintreel key='pen' title='Pen'><text>**Draws**</text>"
            "<video source='pen.mp4'/></hintreel>",
            "search='Standard' locale='en_US'");
        packages.write("Test.hintreels/Resources/pen.vtt", "WEBVTT\n");
        TestClip().write(packages.path() + "/Test.hintreels/Resources/pen.mp4");
        av_log_set_level(AV_LOG_INFO); // FFmpeg's own default, which making the clip has changed
        context.set(applicationFilterKey, true);
        context.set(alwaysShowToolTipsKey, true);
        context.set(hideDelayKey, 0);
        window.setObjectName("pen");
        window.setAttribute(Qt::WA_AlwaysShowToolTips);
        window.show();
        QCoreApplication::processEvents();
    }

    /// What a host does that is opened, hovered and closed again.
    void cycle()
    {
        RecordingHost host(
            context, QStringList{ packages.path(), HINTREELS_SOURCE_DIR "/packages" });
        require(host.show("pen", QPoint(30, 30), &window), "the hint is shown");
        QCoreApplication::processEvents();
        host.manager()->widget()->view()->setOverrideCursor("PointingHandCursor");
    }

    void cycle(int times)
    {
        for (int i = 0; i < times; ++i) {
            cycle();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

    void askForToolTip()
    {
        QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), QPoint(1, 1));
        QCoreApplication::sendEvent(&window, &event);
    }

    TestPackages packages;
    HRContext context;
    HostWindow window;
};

} // namespace

void tst_HostState::initTestCase()
{
    dropMessages();
}

// Each interface leaves its index, which is no state of the host. What else it leaves:
// - FFmpeg is quiet from the first clip on.
// - Qt Quick paints by software from the first popup on, where there is no OpenGL.
// - A child of the application's knows what the desktop wishes, once for all interfaces.
// - Qt::WA_AlwaysShowToolTips is cleared on all windows, as if nobody else could have set it.
// - The QML types are registered, which Qt never takes back, and which no other state shows.
void tst_HostState::host_isAsItWas_afterThousandInterfaces()
{
    Fixture f;
    const HostSnapshot untouched = hostSnapshot(f.window);
    f.cycle(1);
    // A thread that has been waited for is listed for a moment longer.
    QTRY_COMPARE(differingNames(untouched, hostSnapshot(f.window)),
        QStringList({ "FFmpeg's log level", "Qt Quick backend", "application children",
            "window attributes" }));
    const HostSnapshot afterOne = hostSnapshot(f.window);
    QVERIFY(!f.window.testAttribute(Qt::WA_AlwaysShowToolTips));
    f.window.setAttribute(Qt::WA_AlwaysShowToolTips);
    QCOMPARE(hostSnapshot(f.window)["window attributes"], untouched["window attributes"]);

    f.cycle(cycles);
    QTRY_COMPARE(differences(afterOne, hostSnapshot(f.window)), QString());
    // An interface that filters the application's events answers this itself.
    f.askForToolTip();
    QCOMPARE(f.window.toolTips, 1);
}

QTEST_MAIN(tst_HostState)
#include "tst_HostState.moc"
