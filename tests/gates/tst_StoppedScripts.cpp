// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "gates/GateFixture.h"

using namespace Hintreels;

/// Scripts that run for too long, whatever starts them. How threads meet there is the matter of
/// tst_HRScriptWatch.
class tst_StoppedScripts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void script_isStopped_whateverStartsIt_data();
    void script_isStopped_whateverStartsIt();
    void script_runsForEver_whenTheSettingSaysSo();
};

// Neither the library nor the host has a hand in these.
void tst_StoppedScripts::script_isStopped_whateverStartsIt_data()
{
    QTest::addColumn<QByteArray>("body");
    const auto row = [](const char *name, const QByteArray &body) { QTest::newRow(name) << body; };
    row("timer", "Timer { running: true; interval: 1; onTriggered: { while (true); } }");
    row("timer that repeats",
        "Timer { running: true; repeat: true; interval: 1; onTriggered: { while (true); } }");
    row("two timers",
        "Timer { running: true; interval: 1; onTriggered: { while (true); } }\n"
        "Timer { running: true; interval: 1; onTriggered: { while (true); } }");
    row("later",
        "function run() { while (true); }\n"
        "Component.onCompleted: Qt.callLater(run)");
    row("animation",
        "NumberAnimation on opacity { to: 0.5; duration: 100 }\n"
        "onOpacityChanged: { while (true); }");
    row("step of an animation",
        "SequentialAnimation { running: true; PauseAnimation { duration: 20 }\n"
        "ScriptAction { script: { while (true); } } }");
    row("picture",
        "Image { asynchronous: true; source: 'a.png';\n"
        "onStatusChanged: { if (status !== Image.Loading) while (true); } }");
    row("component",
        "Loader { asynchronous: true; sourceComponent: Item {\n"
        "Component.onCompleted: { while (true); } } }");
    row("request",
        "Component.onCompleted: { var r = new XMLHttpRequest();\n"
        "r.onreadystatechange = function() { while (r.readyState === 4); }\n"
        "r.open('GET', 'a.png'); r.send() }");
}

void tst_StoppedScripts::script_isStopped_whateverStartsIt()
{
    QFETCH(QByteArray, body);
    GateFixture f({ { scriptLimitKey, 300 } });
    f.write("ui/a.png", "no picture");
    f.writeUi(body);
    QVERIFY(f.show());
    const QPointer<HRWidget> popup = f.host->manager()->widget();
    QTRY_VERIFY(!popup->isVisible());
    QVERIFY(!popup->view()->rootObject());
    QCOMPARE(f.warnings(),
        QStringList{ "A script of package \"Own\" ran for more than 300 ms and was stopped" });
}

void tst_StoppedScripts::script_runsForEver_whenTheSettingSaysSo()
{
    GateFixture f({ { scriptLimitKey, 0 } });
    f.writeUi("property bool done: false\nComponent.onCompleted: {"
              "var end = Date.now() + 2600; while (Date.now() < end); done = true }");
    QVERIFY(f.show());
    QVERIFY(f.view()->rootObject()->property("done").toBool());
    QCOMPARE(f.warnings(), QStringList());
}

QTEST_MAIN(tst_StoppedScripts)
#include "tst_StoppedScripts.moc"
