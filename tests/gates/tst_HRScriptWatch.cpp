// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "gates/GateFixture.h"
#include "gates/HRScriptWatch_p.h"
#include "gates/HRWatchThread_p.h"
#include "support/Pauses.h"

#include <QElapsedTimer>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QThread>

using namespace Hintreels;

/// What starts a script is the matter of tst_StoppedScripts.
class tst_HRScriptWatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void script_isStopped_whenItRunsForTooLong_data();
    void script_isStopped_whenItRunsForTooLong();
    void script_isStopped_whenItsSceneEnds();
    void eventLoop_isLeftAlone_whileItWaits();
    void script_runsOn_afterAHostThatTakesItsTime();
    void script_runsOn_whenTheHostHasBlockedTheEventLoop();
    void entry_letsTheSceneRun_whenTheHostHasBlocked();
    void pinnedPopup_closes_whenItsScriptIsStopped();
};

namespace {

constexpr int limit = 300; // ms

const QString told = "A script of package \"Own\" ran for more than 300 ms and was stopped";

/// A host that takes its time whenever a script asks for a topic.
class SlowHost : public RecordingHost
{
public:
    using RecordingHost::RecordingHost;

    bool openExternalResource(HRExternalResourceType, const QString &) override
    {
        blockThread(3 * limit);
        return true;
    }
};

} // namespace

void tst_HRScriptWatch::script_isStopped_whenItRunsForTooLong_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("while it is made") << QByteArray("Component.onCompleted: { while (true); }");
    QTest::newRow("binding") << QByteArray("property var a: { while (true); return 1 }");
    QTest::newRow("click") << QByteArray(
        "MouseArea { anchors.fill: parent; onClicked: { while (true); } }");
    QTest::newRow("one that holds on") << QByteArray(
        "MouseArea { anchors.fill: parent; onClicked: {"
        "while (true) { try { while (true); } catch (e) { hintreelView.debugLog('no') } } } }");
    QTest::newRow("calls without end") << QByteArray(
        "MouseArea { anchors.fill: parent; onClicked: { for (;;) hintreelView.debugLog('x') } }");
}

void tst_HRScriptWatch::script_isStopped_whenItRunsForTooLong()
{
    QFETCH(QByteArray, body);
    GateFixture f({ { scriptLimitKey, limit }, { messageLevelKey, int(messageWarning) } });
    f.writeUi(body);
    QElapsedTimer timer;
    timer.start();
    f.show();
    const QPointer<HRWidget> popup = f.host->manager()->widget();
    if (body.contains("MouseArea"))
        QTest::mouseClick(popup->view(), Qt::LeftButton, {}, QPoint(20, 20));
    QTRY_VERIFY(!popup->isVisible());
    QVERIFY2(timer.elapsed() >= limit, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(!popup->view()->rootObject());
    QCOMPARE(f.warnings(), QStringList{ told });
}

void tst_HRScriptWatch::script_isStopped_whenItsSceneEnds()
{
    GateFixture f({ { scriptLimitKey, limit } });
    f.writeUi("Component.onDestruction: { while (true); }");
    QVERIFY(f.show());
    f.view()->setSource(QUrl());
    QTRY_VERIFY(f.host->messages.contains({ int(messageWarning), told }));
    QVERIFY(f.show());
    delete f.host->manager()->widget();
}

void tst_HRScriptWatch::eventLoop_isLeftAlone_whileItWaits()
{
    GateFixture f;
    f.writeUi({});
    QVERIFY(f.show());
    const std::shared_ptr<HRWatchThread> watch = HRWatchThread::shared();
    QEventLoop loop;
    bool rested = false;
    const std::unique_ptr<QThread> onlooker(QThread::create([&] {
        rested = lookUntil([&] { return watch->rests(); });
        loop.quit();
    }));
    onlooker->start();
    loop.exec();
    onlooker->wait();
    QVERIFY(rested);
}

void tst_HRScriptWatch::script_runsOn_afterAHostThatTakesItsTime()
{
    GateFixture f;
    f.writeUi("property string state_\nComponent.onCompleted: {"
              "hintreelView.openExternalResource('topic');"
              "for (var i = 0; i < 100000; ++i); state_ = 'done' }\n"
              "property int runs: 0\n"
              "Timer { running: true; repeat: true; interval: 20; onTriggered: ++runs }");
    f.start();
    HRContext context;
    context.set(scriptLimitKey, limit);
    SlowHost host(context, { f.packages.path() });
    QVERIFY(host.show("key", QPoint(50, 50), nullptr));
    HRWidget *popup = host.manager()->widget();
    QCOMPARE(popup->view()->rootObject()->property("state_").toString(), QString("done"));
    // While the watch looks a few times.
    QTRY_VERIFY(popup->view()->rootObject()->property("runs").toInt() * 20 > 2 * limit);
    QVERIFY(popup->isVisible());
    QCOMPARE(host.takeMessages(messageWarning), QStringList());
}

void tst_HRScriptWatch::script_runsOn_whenTheHostHasBlockedTheEventLoop()
{
    GateFixture f({ { scriptLimitKey, limit } });
    f.writeUi("property int runs: 0\n"
              "property string key: { ++runs; return hintreel.attribute('key') }\n"
              "Timer { running: true; repeat: true; interval: 20; onTriggered: ++runs }");
    QVERIFY(f.show());
    HRWidget *popup = f.host->manager()->widget();
    QCoreApplication::processEvents();
    blockThread(8 * limit);
    const int runs = popup->view()->rootObject()->property("runs").toInt();
    QTRY_VERIFY(popup->view()->rootObject()->property("runs").toInt() > runs + 3);
    QVERIFY(popup->isVisible());
    QCOMPARE(f.warnings(), QStringList());
}

void tst_HRScriptWatch::entry_letsTheSceneRun_whenTheHostHasBlocked()
{
    constexpr int longLimit = 2000; // ms; until then the scene runs on, however busy the machine is
    QQmlEngine engine;
    const auto watch = std::make_shared<HRScriptWatch>(&engine);
    QSignalSpy stopped(watch.get(), &HRScriptWatch::stopped);
    watch->start(longLimit);
    QVERIFY(lookUntil([&engine] { return engine.isInterrupted(); }));
    {
        const HRScriptWatch::Entry entry(watch);
        QVERIFY(!engine.isInterrupted());
        QCOMPARE(engine.evaluate("6 * 7").toInt(), 42);
    }
    QCoreApplication::processEvents();
    QVERIFY(stopped.isEmpty());
    watch->start(0);
}

void tst_HRScriptWatch::pinnedPopup_closes_whenItsScriptIsStopped()
{
    GateFixture f({ { scriptLimitKey, limit } });
    f.writeUi("MouseArea { anchors.fill: parent; onClicked: { while (true); } }");
    QVERIFY(f.show());
    const QPointer<HRWidget> popup = f.host->manager()->widget();
    popup->view()->setReserved(true);
    QVERIFY(f.host->manager()->widget() != popup);
    QTest::mouseClick(popup->view(), Qt::LeftButton, {}, QPoint(20, 20));
    QTRY_VERIFY(!popup); // it deletes itself when it is closed
}

QTEST_MAIN(tst_HRScriptWatch)
#include "tst_HRScriptWatch.moc"
