// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRManager.h"
#include "ui/popup/HRWidget.h"
#include "wayland/WestonHost.h"
#include "x11/RealInput.h"

#include <QDialog>
#include <QMenu>
#include <QtTest>

using namespace Hintreels;

/// Popups and the other windows around them, on a real Wayland compositor.
class tst_wayland_windows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void pinnedPopup_paints_whileNextPopupServesNextWidget_data();
    void pinnedPopup_paints_whileNextPopupServesNextWidget();
    void popup_showsInDialog_andGoesWithIt();
    void popup_showsBesideMenu_andGoesWithIt();
    void popup_shows_whenPointerRestsOnEntry();
    void popup_getsItsPresses_whileMenuIsOpen();
    void popup_showsBesideActiveWindow_withoutReference();
};

namespace {

/// An open menu of the host's window, whose hint is red.
class EntryMenu : public QMenu
{
public:
    explicit EntryMenu(WestonHost &host)
        : QMenu(&host.window)
    {
        setObjectName("red");
        addAction("An entry of some length");
        addAction("Another one");
        popup(host.plain.mapToGlobal(QPoint(0, 0)));
        if (!QTest::qWaitForWindowExposed(this))
            qFatal("the menu does not appear");
    }
};

bool seesHint(const QColor &color, const QSize &size)
{
    return eventually([&] { return RealInput::boundsOf(color).size() == size * outputScale(); });
}

/// Makes the window fill its output: then it is known where it stands.
bool fillOutput(WestonHost &host)
{
    host.window.setWindowState(Qt::WindowMaximized);
    return eventually([&] { return host.window.width() > 600; }) && host.find();
}

/// Brings a button to the corner of the window that is farthest from what shows a colour.
void moveAwayFrom(const QColor &color, const WestonHost &host, QWidget &button)
{
    const QPoint center = RealInput::boundsOf(color).center() - outputOnScreen(0).center();
    const QRect corners = host.window.rect().marginsRemoved({ 20, 20, 20, 20 })
        - QMargins(0, 0, button.width(), button.height());
    button.move(center.x() > 0 ? corners.left() : corners.right(),
        center.y() > 0 ? corners.top() : corners.bottom());
}

/// Sees the mark in the middle of a red hint, which is what QML has painted.
bool seesMark()
{
    return eventually([] {
        const QRect mark(QPoint(80, 40) * outputScale(), QSize(40, 40) * outputScale());
        const QPoint hint = RealInput::boundsOf(Qt::red).topLeft();
        const QImage picture = RealInput::screenshot().copy(mark.translated(hint));
        QImage white(picture.size(), picture.format());
        white.fill(Qt::white);
        return picture == white;
    });
}

bool seesNothingOf(const QColor &color)
{
    return eventually([&] { return RealInput::boundsOf(color).isEmpty(); });
}

} // namespace

void tst_wayland_windows::init()
{
    restPointerElsewhere();
}

void tst_wayland_windows::pinnedPopup_paints_whileNextPopupServesNextWidget_data()
{
    QTest::addColumn<bool>("inHostWindow");
    QTest::newRow("window of its own") << false;
    QTest::newRow("window of the host") << true;
}

void tst_wayland_windows::pinnedPopup_paints_whileNextPopupServesNextWidget()
{
    QFETCH(bool, inHostWindow);
    WestonHost host;
    QWidget hostWindow(nullptr, Qt::Tool);
    host.reservedWindow = inHostWindow ? &hostWindow : nullptr;
    QVERIFY(fillOutput(host));
    QVERIFY(host.hover(host.red));
    QVERIFY(eventually([&] { return showsHint(host.popup(), Qt::red); }));
    const QPointer<HRWidget> pinned = &host.popup();
    const QPoint before = RealInput::boundsOf(Qt::red).topLeft();

    RealInput::click(pinOf(*pinned));

    QVERIFY(eventually([&] { return host.manager()->widget() != pinned; }));
    // The compositor has it stand where it likes, and makes it the active window.
    QVERIFY(eventually([&] {
        const QRect red = RealInput::boundsOf(Qt::red);
        return !red.isEmpty() && red.topLeft() != before;
    }));
    QVERIFY(eventually([&] { return QApplication::activeWindow() == pinned->window(); }));
    QVERIFY(seesMark());
    moveAwayFrom(Qt::red, host, host.blue);
    QVERIFY(host.hover(host.blue));
    QVERIFY(eventually([&] { return showsHint(host.popup(), Qt::blue); }));
    QVERIFY(pinned && pinned->isVisible());

    pinned->window()->hide();
    QVERIFY(seesNothingOf(Qt::red));
}

void tst_wayland_windows::popup_showsInDialog_andGoesWithIt()
{
    WestonHost host;
    QDialog dialog(&host.window);
    dialog.resize(300, 200);
    host.red.setParent(&dialog);
    host.moveMarkTo(dialog);
    dialog.open();
    QVERIFY(eventually([&] { return dialog.isActiveWindow(); }));
    QVERIFY(host.find());

    QVERIFY(host.hover(host.red));
    QVERIFY(eventually([&] { return showsHint(host.popup(), Qt::red); }));

    dialog.reject();
    QVERIFY(!host.popup().isVisible());
    QVERIFY(seesNothingOf(Qt::red));
    host.red.setParent(&host.window);
}

void tst_wayland_windows::popup_showsBesideMenu_andGoesWithIt()
{
    WestonHost host;
    EntryMenu menu(host);

    host.show(menu, menu.mapToGlobal(QPoint(10, 10)));
    QVERIFY(seesHint(Qt::red, QSize(201, 121)));

    menu.close();
    QVERIFY(!host.popup().isVisible());
    QVERIFY(seesNothingOf(Qt::red));
    QVERIFY(host.hover(host.blue));
    QVERIFY(eventually([&] { return showsHint(host.popup(), Qt::blue); }));
}

void tst_wayland_windows::popup_shows_whenPointerRestsOnEntry()
{
    WestonHost host;
    EntryMenu menu(host);

    QVERIFY(host.hover(menu));

    QVERIFY(seesHint(Qt::red, QSize(201, 121)));
    QVERIFY(menu.isVisible());
}

void tst_wayland_windows::popup_getsItsPresses_whileMenuIsOpen()
{
    WestonHost host([](HRContext &context) { context.set(popupPressesKey, true); });
    EntryMenu menu(host);
    QVERIFY(host.hover(menu));
    QVERIFY(seesHint(Qt::red, QSize(201, 121)));

    RealInput::click(areaOf(host.popup()).center());

    QVERIFY(eventually([&] { return host.messages.join(u' ').contains("pressed"); }));
    QVERIFY(menu.isVisible());
    QVERIFY(host.popup().isVisible());
}

void tst_wayland_windows::popup_showsBesideActiveWindow_withoutReference()
{
    WestonHost host;
    const QPoint pointer = host.red.mapToGlobal(host.red.rect().center());

    QVERIFY(host.manager()->show("red", pointer, nullptr));

    QVERIFY(eventually([&] { return showsHint(host.popup(), Qt::red); }));
}

QTEST_MAIN(tst_wayland_windows)
#include "tst_wayland_windows.moc"
