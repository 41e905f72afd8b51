// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "interface/HRInterface.h"
#include "manager/HRManager.h"
#include "support/MessageGuard.h"
#include "support/TestPackage.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"

#include <QHelpEvent>
#include <QQuickItem>
#include <QtTest>

#include <functional>
#include <memory>
#include <utility>

using namespace Hintreels;

namespace {

/// A host that does something once in one of its callbacks, be it that it ends itself.
class ActingHost : public HRInterface
{
public:
    using HRInterface::HRInterface;

    QWidget *createWindow(HRWindowType) override
    {
        actIn("createWindow");
        return nullptr;
    }
    QString keyForObject(QObject *) override
    {
        actIn("keyForObject");
        return callback == "keyForObject" ? "no hint" : "fourth";
    }
    bool openExternalResource(HRExternalResourceType, const QString &resource) override
    {
        if (resource == "nested")
            nested();
        else
            actIn("openExternalResource");
        return true;
    }
    void handleMessage(HRMessageType, const QString &message) override
    {
        if (message.contains("act!") || message.contains("nowhere"))
            actIn("handleMessage");
    }
    QString translateString(const QString &text, const QString &) override
    {
        actIn("translateString");
        return text;
    }
    QString shortCutForObject(const QString &, QObject *, const QString &shortcut) override
    {
        actIn("shortCutForObject");
        return shortcut;
    }

    std::function<void()> act;
    std::function<void()> nested; ///< leads to the callbacks that no script calls
    QByteArray callback; ///< the one that acts

private:
    void actIn(const char *name)
    {
        if (callback != name || !act)
            return;
        const std::function<void()> once = std::exchange(act, nullptr);
        once(); // may end this object
    }
};

/// A host with the hints "first", "third" and "fourth", whose scripts are a test's, and "second",
/// which has another QML file.
struct Fixture
{
    explicit Fixture(const QByteArray &body)
    {
        packages.write("A.hintreels/ui/First.qml",
            "import QtQuick 2.15\nRectangle { width: 100; height: 80; objectName: 'first'\n" + body
                + "\n}\n");
        secondFile = packages.write("A.hintreels/ui/Second.qml",
            "import QtQuick 2.15\nRectangle { width: 150; height: 90; objectName: 'second' }\n");
        packages.writeControl("A", "a.xml",
            "<hintreel key='first' ui='ui/First.qml'/><hintreel key='third' ui='ui/First.qml'/>"
            "<hintreel key='fourth' ui='ui/First.qml'/>"
            "<hintreel key='second' ui='ui/Second.qml'/>");
        context.set(hideDelayKey, 0);
        context.set(hideAnimationDurationKey, 0);
        context.set(allowNamedResourcesKey, true);
        context.set(messageLevelKey, int(messageDebug));
        host = std::make_unique<ActingHost>(context, QStringList{ packages.path() });
        host->nested = [this] {
            QHelpEvent toolTip(QEvent::ToolTip, QPoint(), QPoint(60, 60));
            host->manager()->eventFilter(&target, &toolTip);
        };
    }

    ~Fixture()
    {
        host.reset();
        delete popup;
        guard.takeMessages(); // scripts complain of the view that went under them
    }

    bool show(const QString &key)
    {
        const bool shown = host->show(key, QPoint(50, 50), nullptr);
        return shown;
    }
    void notePopup()
    {
        popup = host->manager()->widget();
        view = popup->view();
    }
    QString scene() const
    {
        return view && view->rootObject() ? view->rootObject()->objectName() : "";
    }

    MessageGuard guard;
    TestPackages packages;
    HRContext context;
    QObject target;
    QString secondFile;
    std::unique_ptr<ActingHost> host;
    QPointer<HRWidget> popup;
    QPointer<HRView> view;
};

struct Action
{
    std::function<void(Fixture &)> act;
    std::function<bool(Fixture &)> isDone;
};

const QMap<QByteArray, Action> actions{
    { "shows another hint",
        { [](Fixture &f) { f.show("second"); },
            [](Fixture &f) { return f.scene() == "second"; } } },
    { "hides", { [](Fixture &f) { f.popup->hide(); }, [](Fixture &f) { return !!f.popup; } } },
    { "pins",
        { [](Fixture &f) { f.view->setReserved(true); },
            [](Fixture &f) {
                return f.view->reserved() && f.host->manager()->widget() != f.popup;
            } } },
    { "deletes the interface",
        { [](Fixture &f) { f.host.reset(); }, [](Fixture &f) { return !f.popup; } } },
    { "deletes the view later",
        { [](Fixture &f) { f.view->deleteLater(); }, [](Fixture &f) { return !f.view; } } },
    { "deletes the popup later",
        { [](Fixture &f) { f.popup->deleteLater(); }, [](Fixture &f) { return !f.popup; } } },
    { "changes settings",
        { [](Fixture &f) {
             f.host->context().set(allowNamedResourcesKey, false);
             f.host->context().set(simpleTooltipKey, true);
         },
            [](Fixture &f) { return !f.view->documentationAvailable(); } } },
};

const QMap<QByteArray, QByteArray> triggers{
    { "click", "MouseArea { anchors.fill: parent; onClicked: { %1 } }" },
    { "timer", "Timer { running: true; interval: 1; onTriggered: { %1 } }" },
    { "onCompleted", "Component.onCompleted: { %1 }" },
    { "binding", "property var bound: { %1; return hintreel.attribute('key') }" },
    { "later binding",
        "property bool on: hintreel.attribute('key') === 'third'\n"
        "property var bound: { if (on) { %1 } return 1 }" },
    { "size change", "Component.onCompleted: width = 120; onWidthChanged: { %1 }" },
};

const QMap<QByteArray, QByteArray> calls{
    { "createWindow", "hintreelView.reserved = true" },
    { "keyForObject", "hintreelView.openExternalResource('nested')" },
    { "openExternalResource", "hintreelView.openExternalResource('topic')" },
    { "handleMessage", "hintreelView.debugLog('act!')" },
    { "handleMessage of a warning", "nowhere.to.be.found" },
    { "translateString", "hintreelView.translate('text', 'context')" },
    { "shortCutForObject", "hintreelView.openExternalResource('nested')" },
};

} // namespace

// What a host may do when a script of the popup has called it.
class tst_SceneCallbacks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void callback_mayDoAnything_data();
    void callback_mayDoAnything();
    void script_mayLoadAnotherFile_data();
    void script_mayLoadAnotherFile();
    void show_fromScript_changesContentAtOnce_andPaintsNothingBetween();
    void show_fromScript_fitsPopupToNewScene();
    void waitingFile_isForgotten_whenTheSceneIsShownAgain();
    void waitingFile_waits_whileCallbackRunsAnEventLoop();

private:
    static void trigger(Fixture &fixture, const QByteArray &name);
};

void tst_SceneCallbacks::trigger(Fixture &f, const QByteArray &name)
{
    f.show("first");
    if (name == "click" && f.view)
        QTest::mouseClick(f.view, Qt::LeftButton, {}, QPoint(20, 20));
    if (name == "later binding" && f.host)
        f.show("third");
}

void tst_SceneCallbacks::callback_mayDoAnything_data()
{
    QTest::addColumn<QByteArray>("triggerName");
    QTest::addColumn<QByteArray>("call");
    QTest::addColumn<QByteArray>("action");
    for (const QByteArray &triggerName : triggers.keys()) {
        for (const QByteArray &call : calls.keys()) {
            for (const QByteArray &action : actions.keys()) {
                QTest::addRow("%s, %s, %s", triggerName.data(), call.data(), action.data())
                    << triggerName << call << action;
            }
        }
    }
}

void tst_SceneCallbacks::callback_mayDoAnything()
{
    QFETCH(QByteArray, triggerName);
    QFETCH(QByteArray, call);
    QFETCH(QByteArray, action);
    Fixture f(QByteArray(triggers[triggerName]).replace("%1", calls[call]));
    bool acted = false;
    f.host->callback = call.split(' ').first();
    const std::function<void()> act = [&] {
        f.notePopup();
        acted = true;
        actions[action].act(f);
    };
    if (call == "shortCutForObject") {
        // Not the hint itself that is asked for first, but the one that its script asks for.
        const std::function<void()> nested = f.host->nested;
        f.host->nested = [&f, act, nested] {
            f.host->act = act;
            nested();
        };
    } else {
        f.host->act = act;
    }
    // Where it deletes the view, the popup has none at once.
    if (f.host->show("warm up", QPoint(), nullptr))
        QFAIL("there is no such hint");
    f.notePopup();

    trigger(f, triggerName);

    QTRY_VERIFY(acted);
    QTRY_VERIFY(actions[action].isDone(f));
}

void tst_SceneCallbacks::script_mayLoadAnotherFile_data()
{
    QTest::addColumn<QByteArray>("triggerName");
    QTest::addColumn<QByteArray>("call");
    QList<QByteArray> names = triggers.keys();
    names.removeAll("later binding"); // the show() that it is in asks for its own file afterwards
    for (const QByteArray &triggerName : names) {
        for (const char *call : { "hintreelView.loadQML('%2')", "hintreelView.source = 'file://%2'",
                 "hintreelView.setSource('file://%2')" })
            QTest::addRow("%s, %s", triggerName.data(), call) << triggerName << QByteArray(call);
    }
}

void tst_SceneCallbacks::script_mayLoadAnotherFile()
{
    QFETCH(QByteArray, triggerName);
    QFETCH(QByteArray, call);
    TestPackages other;
    const QString file = other.write(
        "Other.qml", "import QtQuick 2.15\nItem { width: 60; height: 60; objectName: 'other' }\n");
    call.replace("%2", file.toUtf8());
    Fixture f(QByteArray(triggers[triggerName]).replace("%1", call));
    f.show("nothing");
    f.notePopup();
    trigger(f, triggerName);
    QTRY_COMPARE(f.scene(), QString("other"));
    QCOMPARE(f.view->source(), QUrl::fromLocalFile(file));
}

void tst_SceneCallbacks::show_fromScript_changesContentAtOnce_andPaintsNothingBetween()
{
    Fixture f("MouseArea { anchors.fill: parent; "
              "onClicked: hintreelView.openExternalResource('topic') }");
    QVERIFY(f.show("first"));
    f.notePopup();
    QVERIFY(QTest::qWaitForWindowExposed(f.view));
    QStringList painted;
    bool watches = false;
    connect(f.view, &QQuickWindow::beforeRendering, this, [&] {
        if (watches)
            painted.append(f.scene());
    });
    f.host->callback = "openExternalResource";
    bool shown = false;
    QString key;
    QString sceneThen;
    f.host->act = [&] {
        watches = true;
        shown = f.show("second");
        key = f.view->content()->attribute("key");
        sceneThen = f.scene();
        f.view->update();
        QCOMPARE(f.view->source(), QUrl::fromLocalFile(f.secondFile));
    };
    QTest::mouseClick(f.view, Qt::LeftButton, {}, QPoint(20, 20));
    QVERIFY(shown);
    QCOMPARE(key, QString("second"));
    QCOMPARE(sceneThen, QString("first"));
    QTRY_VERIFY(!painted.isEmpty());
    QCOMPARE(painted.first(), QString("second"));
}

void tst_SceneCallbacks::show_fromScript_fitsPopupToNewScene()
{
    Fixture f("Component.onCompleted: hintreelView.openExternalResource('topic')");
    f.host->callback = "openExternalResource";
    f.host->act = [&] { f.show("second"); };
    f.show("first");
    f.notePopup();
    QTRY_COMPARE(f.scene(), QString("second"));
    QTRY_COMPARE(f.view->size(), QSize(150, 90));
    QTRY_VERIFY(f.popup->width() >= 150 && f.popup->width() < 155);
}

void tst_SceneCallbacks::waitingFile_isForgotten_whenTheSceneIsShownAgain()
{
    Fixture f("MouseArea { anchors.fill: parent; "
              "onClicked: hintreelView.openExternalResource('topic') }");
    QVERIFY(f.show("first"));
    f.notePopup();
    const QPointer<QQuickItem> scene = f.view->rootObject();
    f.host->callback = "openExternalResource";
    f.host->act = [&] {
        f.show("second");
        f.show("first");
    };
    QTest::mouseClick(f.view, Qt::LeftButton, {}, QPoint(20, 20));
    QSignalSpy painted(f.view, &QQuickWindow::afterRendering);
    QVERIFY(painted.wait());
    QVERIFY(scene);
    QCOMPARE(f.scene(), QString("first"));
}

void tst_SceneCallbacks::waitingFile_waits_whileCallbackRunsAnEventLoop()
{
    Fixture f("MouseArea { anchors.fill: parent; "
              "onClicked: { hintreelView.openExternalResource('topic'); objectName = 'back' } }");
    QVERIFY(f.show("first"));
    f.notePopup();
    f.host->callback = "openExternalResource";
    QString sceneInLoop;
    f.host->act = [&] {
        f.show("second");
        QEventLoop dialog;
        QTimer::singleShot(100, &dialog, &QEventLoop::quit);
        dialog.exec();
        sceneInLoop = f.scene();
    };
    QTest::mouseClick(f.view, Qt::LeftButton, {}, QPoint(20, 20));
    QCOMPARE(sceneInLoop, QString("first"));
    QTRY_COMPARE(f.scene(), QString("second"));
}

QTEST_MAIN(tst_SceneCallbacks)
#include "tst_SceneCallbacks.moc"
