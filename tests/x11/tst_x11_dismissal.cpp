// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRManager.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"
#include "x11/HintHost.h"
#include "x11/RealInput.h"

#include <QDrag>
#include <QMenu>
#include <QMimeData>
#include <QShortcut>
#include <QtTest>

#include <functional>

using namespace Hintreels;

namespace {

const QPoint farAway(1000, 700);

/// A host whose popup goes for nothing but what is tested, with a menu.
struct Host : HintHost
{
    explicit Host(bool isNative)
        : HintHost([isNative](HRContext &context) {
            context.set(hideDelayKey, 0);
            context.set(nativeDismissalKey, isNative);
        })
    {
        menu.setObjectName("blue");
        menu.addAction("Open");
        menu.addMenu(&further);
        further.addAction("Yesterday");
    }

    /// Rests the pointer on the menu until its hint shows.
    bool hoverMenu()
    {
        menu.popup(window.geometry().topRight() + QPoint(100, 0));
        if (!QTest::qWaitForWindowExposed(&menu))
            return false;
        RealInput::movePointer(menu.mapToGlobal(menu.actionGeometry(menu.actions()[0]).center()));
        return QTest::qWaitFor([this] { return showsPopup(); });
    }

    QMenu menu{ &window };
    QMenu further{ "Further", &window };
};

/// The keys that a widget has seen released.
class KeyWatch : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::KeyRelease)
            released.append(static_cast<QKeyEvent *>(event)->key());
        return false;
    }

    QVector<int> released;
};

/// A widget that the pointer drags, and drops as soon as the drag is over it.
class Handle : public QWidget
{
public:
    explicit Handle(HintHost &host)
        : QWidget(&host.window)
        , m_host(host)
    {
        setGeometry(host.plain.geometry());
        setAcceptDrops(true);
        show();
        raise();
    }

    bool isPressed = false;
    QVector<bool> popupShown; ///< whether a popup showed when a drag came

private:
    void mousePressEvent(QMouseEvent *) override { isPressed = true; }

    void mouseMoveEvent(QMouseEvent *) override
    {
        auto *drag = new QDrag(this);
        drag->setMimeData(new QMimeData);
        drag->mimeData()->setText("text");
        drag->exec(Qt::CopyAction);
    }

    void dragEnterEvent(QDragEnterEvent *event) override
    {
        popupShown.append(m_host.showsPopup());
        event->acceptProposedAction();
        RealInput::release();
    }

    HintHost &m_host;
};

using Deed = std::function<void(Host &)>;

const QMap<QString, Deed> deeds{
    { "key", [](Host &) { RealInput::type("a"); } },
    { "key of a shortcut", [](Host &) { RealInput::key("ctrl+k"); } },
    { "wheel", [](Host &) { RealInput::scroll(); } },
    { "window moves", [](Host &host) { host.window.move(200, 150); } },
    { "menu opens", [](Host &host) { host.menu.popup(QPoint(600, 100)); } },
    { "part is hidden", [](Host &host) { host.red.hide(); } },
    { "window is minimised", [](Host &host) { host.window.showMinimized(); } },
};

} // namespace

Q_DECLARE_METATYPE(Deed)

/// What takes the popup away as it takes native tool tips away, on a real X server.
class tst_x11_dismissal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void popup_goes_data();
    void popup_goes();
    void popup_stays_withoutTheSetting();
    void popup_stays_forModifiersAlone();
    void popup_stays_whenItsUiKeepsItOpen();
    void popup_stays_whenPinned();
    void popup_goes_withItsMenu();
    void popup_stays_whenAnotherMenuCloses();
    void popup_goes_withADeletedPart();
    void popup_goes_forADrag_data();
    void popup_goes_forADrag();
};

void tst_x11_dismissal::init()
{
    RealInput::movePointer(farAway);
}

void tst_x11_dismissal::popup_goes_data()
{
    QTest::addColumn<Deed>("deed");
    for (auto deed = deeds.begin(); deed != deeds.end(); ++deed)
        QTest::newRow(qPrintable(deed.key())) << *deed;
}

void tst_x11_dismissal::popup_goes()
{
    QFETCH(Deed, deed);
    Host host(true);
    const QShortcut shortcut(QKeySequence("Ctrl+K"), &host.window);
    QVERIFY(host.hover(host.red));
    QTRY_VERIFY(showsHint(host.popup(), Qt::red));

    deed(host);

    QTRY_VERIFY(!host.popup().isVisible());
}

void tst_x11_dismissal::popup_stays_withoutTheSetting()
{
    Host host(false);
    QVERIFY(host.hover(host.red));
    RealInput::scroll();
    host.window.move(200, 150);
    RealInput::type("a");
    QTRY_COMPARE(host.field.text(), QString("a"));
    QVERIFY(host.popup().isVisible());
}

void tst_x11_dismissal::popup_stays_forModifiersAlone()
{
    Host host(true);
    QVERIFY(host.hover(host.red));
    KeyWatch keys;
    host.field.installEventFilter(&keys);
    for (const char *modifier : { "shift", "ctrl" })
        RealInput::key(modifier);
    QTRY_COMPARE(keys.released, (QVector<int>{ Qt::Key_Shift, Qt::Key_Control }));
    QVERIFY(host.popup().isVisible());
    RealInput::type("a");
    QTRY_VERIFY(!host.popup().isVisible());
    QTRY_COMPARE(host.field.text(), QString("a"));
}

void tst_x11_dismissal::popup_stays_whenItsUiKeepsItOpen()
{
    Host host(true);
    QVERIFY(host.hover(host.red));
    host.popup().view()->setStayOpen(true);
    RealInput::scroll();
    RealInput::type("a");
    QTRY_COMPARE(host.field.text(), QString("a"));
    QVERIFY(host.popup().isVisible());
}

void tst_x11_dismissal::popup_stays_whenPinned()
{
    Host host(true);
    QVERIFY(host.hover(host.red));
    const QPointer<HRWidget> popup = &host.popup();
    popup->view()->setReserved(true);
    QVERIFY(QTest::qWaitForWindowActive(popup));
    host.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&host.window));
    host.window.move(200, 150);
    RealInput::type("a");
    QTRY_COMPARE(host.field.text(), QString("a"));
    host.red.hide();
    QVERIFY(popup && popup->isVisible());
    delete popup;
}

void tst_x11_dismissal::popup_goes_withItsMenu()
{
    Host host(true);
    QVERIFY(host.hoverMenu());
    host.menu.hide();
    QVERIFY(!host.popup().isVisible());
}

void tst_x11_dismissal::popup_stays_whenAnotherMenuCloses()
{
    Host host(true);
    host.menu.popup(QPoint(600, 100));
    host.further.popup(QPoint(800, 100));
    host.show(host.menu, QPoint(300, 500));
    QVERIFY(host.popup().isVisible());
    host.further.hide();
    QVERIFY(host.popup().isVisible());
    host.further.popup(QPoint(800, 100));
    QVERIFY(!host.popup().isVisible());
}

void tst_x11_dismissal::popup_goes_withADeletedPart()
{
    Host host(true);
    auto *part = new QWidget(&host.window);
    part->setObjectName("red");
    part->show();
    host.show(*part, QPoint(300, 300));
    QVERIFY(host.popup().isVisible());
    delete part;
    QVERIFY(!host.popup().isVisible());
}

void tst_x11_dismissal::popup_goes_forADrag_data()
{
    QTest::addColumn<bool>("isNative");
    QTest::newRow("as native tool tips") << true;
    QTest::newRow("not without the setting") << false;
}

void tst_x11_dismissal::popup_goes_forADrag()
{
    QFETCH(bool, isNative);
    Host host(isNative);
    Handle handle(host);
    const QPoint middle = handle.mapToGlobal(handle.rect().center());
    RealInput::movePointer(middle);
    RealInput::press();
    QTRY_VERIFY(handle.isPressed);
    host.show(host.red, host.window.geometry().topRight() + QPoint(20, 0));
    QVERIFY(host.showsPopup());
    RealInput::movePointer(middle + QPoint(20, 0));
    QTRY_COMPARE(handle.popupShown, QVector<bool>{ !isNative });
    QCOMPARE(host.showsPopup(), !isNative);
}

QTEST_MAIN(tst_x11_dismissal)
#include "tst_x11_dismissal.moc"
