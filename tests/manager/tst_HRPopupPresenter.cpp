// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "interface/HRInterface.h"
#include "manager/HRManager.h"
#include "support/RecordingHost.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"

#include <QHelpEvent>
#include <QtTest>

#include <functional>
#include <memory>

using namespace Hintreels;

namespace {

enum Callback
{
    askedForKey,
    askedForShortcut,
    askedForWindow,
    toldFirst, // that a key is looked for
    toldSecond, // that its content is read
    toldThird // that its UI is missing, where it is
};

// A host that does something once, from within one of its callbacks.
class MeddlingHost : public HRInterface
{
    Q_OBJECT

public:
    using HRInterface::HRInterface;

    QString keyForObject(QObject *object) override
    {
        return calledBack(askedForKey, HRInterface::keyForObject(object));
    }
    QString shortCutForObject(const QString &, QObject *, const QString &) override
    {
        return calledBack(askedForShortcut, "F1");
    }
    QWidget *createWindow(HRWindowType) override
    {
        calledBack(askedForWindow);
        return nullptr;
    }
    void handleMessage(HRMessageType, const QString &) override
    {
        calledBack(Callback(toldFirst + messages++));
    }

    Callback when = askedForKey;
    std::function<void()> deed;
    int messages = 0;

private:
    // The deed may delete the host: nothing of it is touched afterwards.
    QString calledBack(Callback callback, const QString &answer = {})
    {
        if (callback == when && deed)
            std::exchange(deed, nullptr)();
        return answer;
    }
};

// What a deed finds: a host that shows "ink" for another widget and is about to show "pen".
struct Fixture
{
    Fixture()
        : target(new QWidget)
    {
        target->setObjectName("pen");
        packages.write("A.hintreels/ui/Popup.qml", rectangleQml(120, 80));
        packages.writeControl("A", "en.xml", "<hintreel key='pen'/><hintreel key='ink'/>",
            "locale='en_US' ui='ui/Popup.qml'");
        context.set(hideAnimationDurationKey, 0);
        context.set(hideDelayKey, 0);
        host = std::make_unique<MeddlingHost>(context, QStringList{ packages.path() });
        host->show("ink", QPoint(10, 10), nullptr);
        host->context().set(messageLevelKey, int(messageInformation));
    }

    // A reserved popup is the reader's, and outlives the host.
    ~Fixture()
    {
        host.reset();
        const QWidgetList widgets = QApplication::topLevelWidgets();
        for (QWidget *widget : widgets) {
            if (qobject_cast<HRWidget *>(widget))
                delete widget;
        }
    }

    HRWidget *popup() const { return host ? host->manager()->widget() : nullptr; }
    HRXmlElement *content() const
    {
        return popup() && popup()->view() ? popup()->view()->content() : nullptr;
    }
    QString key() const { return content() ? content()->attribute("key") : QString(); }

    /// Deletes the element alone; its root is left to who does.
    void deleteContent()
    {
        orphan.reset(content()->parent());
        delete content();
    }

    TestPackages packages;
    HRContext context;
    std::unique_ptr<QWidget> target;
    std::unique_ptr<QObject> orphan;
    std::unique_ptr<MeddlingHost> host;
};

using Deed = std::function<void(Fixture &)>;

const QMap<QString, Deed> deeds{
    { "deletes the interface", [](Fixture &f) { f.host.reset(); } },
    { "deletes the popup", [](Fixture &f) { delete f.popup(); } },
    { "deletes the view", [](Fixture &f) { delete f.popup()->view(); } },
    { "takes the view", [](Fixture &f) { f.popup()->setView(nullptr); } },
    { "deletes the content", [](Fixture &f) { f.deleteContent(); } },
    { "deletes the content's tree", [](Fixture &f) { delete f.content()->parent(); } },
    { "deletes the target", [](Fixture &f) { f.target.reset(); } },
    { "shows another hint", [](Fixture &f) { f.host->show("ink", QPoint(10, 10), nullptr); } },
    { "shows the same hint", [](Fixture &f) { f.host->show("pen", QPoint(10, 10), nullptr); } },
    { "hides the popup", [](Fixture &f) { f.popup()->hide(); } },
    { "reserves the popup", [](Fixture &f) { f.popup()->view()->setReserved(true); } },
};

} // namespace

Q_DECLARE_METATYPE(Deed)

class tst_HRPopupPresenter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void show_survives_whatTheHostDoesMeanwhile_data();
    void show_survives_whatTheHostDoesMeanwhile();
    void show_answersByWhatIsSeen_whenHostMeddles_data();
    void show_answersByWhatIsSeen_whenHostMeddles();
    void show_placesPopup_beforeItAsksForTheShortcut();
    void show_survives_whenHostDeletesPopup_overMissingFile_data();
    void show_survives_whenHostDeletesPopup_overMissingFile();
    void reserve_survives_whatTheHostDoesMeanwhile_data();
    void reserve_survives_whatTheHostDoesMeanwhile();
};

void tst_HRPopupPresenter::show_survives_whatTheHostDoesMeanwhile_data()
{
    QTest::addColumn<int>("when");
    QTest::addColumn<Deed>("deed");
    const QMap<QString, int> callbacks{ { "key", askedForKey }, { "shortcut", askedForShortcut },
        { "first message", toldFirst }, { "second message", toldSecond } };
    for (auto callback = callbacks.begin(); callback != callbacks.end(); ++callback) {
        for (auto deed = deeds.begin(); deed != deeds.end(); ++deed)
            QTest::newRow(qPrintable(callback.key() + ": " + deed.key())) << *callback << *deed;
    }
}

void tst_HRPopupPresenter::show_survives_whatTheHostDoesMeanwhile()
{
    QFETCH(int, when);
    QFETCH(Deed, deed);
    Fixture f;
    bool done = false;
    f.host->when = Callback(when);
    f.host->deed = [&] {
        deed(f);
        done = true;
    };

    QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), QPoint(10, 10));
    f.host->manager()->eventFilter(f.target.get(), &event);
    QVERIFY(done);

    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    if (f.host && (!f.popup() || f.popup()->view()))
        QVERIFY(f.host->show("ink", QPoint(10, 10), nullptr));
}

void tst_HRPopupPresenter::show_answersByWhatIsSeen_whenHostMeddles_data()
{
    QTest::addColumn<QString>("deed");
    QTest::addColumn<bool>("answer");
    QTest::addColumn<QString>("key");
    QTest::newRow("gone") << "deletes the interface" << false << QString();
    QTest::newRow("no popup") << "deletes the popup" << false << QString();
    QTest::newRow("no view") << "takes the view" << false << QString();
    QTest::newRow("another hint") << "shows another hint" << true << "ink";
    QTest::newRow("no target") << "deletes the target" << true << "pen";
}

void tst_HRPopupPresenter::show_answersByWhatIsSeen_whenHostMeddles()
{
    QFETCH(QString, deed);
    QFETCH(QString, key);
    Fixture f;
    f.host->when = askedForShortcut;
    f.host->deed = [&] { deeds.value(deed)(f); };
    QTEST(f.host->show("pen", QPoint(10, 10), f.target.get()), "answer");
    QCOMPARE(f.key(), key);
}

void tst_HRPopupPresenter::show_placesPopup_beforeItAsksForTheShortcut()
{
    Fixture f;
    const QPoint position = f.popup()->pos();
    f.host->when = askedForShortcut;
    f.host->deed = [&] { f.host->context().set(tooltipOffsetKey, QSize(200, 200)); };
    QVERIFY(f.host->show("pen", QPoint(10, 10), nullptr));
    QCOMPARE(f.popup()->pos(), position);
    QVERIFY(f.host->show("ink", QPoint(10, 10), nullptr));
    QCOMPARE(f.popup()->pos(), QPoint(210, 210));
}

void tst_HRPopupPresenter::show_survives_whenHostDeletesPopup_overMissingFile_data()
{
    QTest::addColumn<QString>("deed");
    QTest::addColumn<bool>("answer");
    QTest::newRow("popup") << "deletes the popup" << false;
    QTest::newRow("view") << "deletes the view" << true;
}

void tst_HRPopupPresenter::show_survives_whenHostDeletesPopup_overMissingFile()
{
    QFETCH(QString, deed);
    Fixture f;
    QVERIFY(QFile::remove(f.packages.path() + "/A.hintreels/ui/Popup.qml"));
    f.host->context().set(messageLevelKey, int(messageDebug));
    f.host->when = toldThird;
    f.host->deed = [&] { deeds.value(deed)(f); };
    QTEST(f.host->show("pen", QPoint(10, 10), nullptr), "answer");
    QCOMPARE(f.host->messages, 3);
}

void tst_HRPopupPresenter::reserve_survives_whatTheHostDoesMeanwhile_data()
{
    QTest::addColumn<Deed>("deed");
    for (auto deed = deeds.begin(); deed != deeds.end(); ++deed)
        QTest::newRow(qPrintable(deed.key())) << *deed;
}

void tst_HRPopupPresenter::reserve_survives_whatTheHostDoesMeanwhile()
{
    QFETCH(Deed, deed);
    Fixture f;
    bool done = false;
    f.host->when = askedForWindow;
    f.host->deed = [&] {
        deed(f);
        done = true;
    };
    const QPointer<HRWidget> popup = f.popup();
    popup->view()->setReserved(true);
    QVERIFY(done);
    QVERIFY(!f.host || !popup || !popup->view() || f.popup() != popup);
    delete popup;
}

QTEST_MAIN(tst_HRPopupPresenter)
#include "tst_HRPopupPresenter.moc"
