// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/wayland_p.h"

#include "ui/popup/popupGeometry_p.h"

#include <QWindow>
#include <QtTest>

using namespace Hintreels;

namespace {

const QRect place(100, 100, 400, 200);
const QPoint nearTopLeft(150, 120);
const QPoint nearBottomRight(480, 280);
const QSize offset(35, 30);
const QSize popup(60, 40);

} // namespace

/// The rules alone, on a platform without Wayland; tst_wayland_place holds them against a
/// compositor.
class tst_wayland : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void platform_isAnother();
    void room_endsWherePointerHasLess_data();
    void room_endsWherePointerHasLess();
    void popup_goesWherePointerHasMoreRoom_data();
    void popup_goesWherePointerHasMoreRoom();
    void window_thatFillsItsOutput_isAllThereIs_data();
    void window_thatFillsItsOutput_isAllThereIs();
    void withoutWindow_roomIsEverywhere();
    void menu_standsBesideTheWindowItBelongsTo();
    void window_isTheReferences();
};

void tst_wayland::platform_isAnother()
{
    QVERIFY(!isOnWayland());
}

void tst_wayland::room_endsWherePointerHasLess_data()
{
    QTest::addColumn<QPoint>("pointer");
    QTest::addColumn<QPoint>("within");
    QTest::addColumn<QPoint>("outside");
    QTest::newRow("near the top left") << nearTopLeft << QPoint(5000, 5000) << QPoint(99, 99);
    QTest::newRow("near the bottom right")
        << nearBottomRight << QPoint(-5000, -5000) << QPoint(500, 300);
}

void tst_wayland::room_endsWherePointerHasLess()
{
    QFETCH(QPoint, pointer);
    QFETCH(QPoint, within);
    QFETCH(QPoint, outside);
    QWindow window;
    window.setGeometry(place);
    const QRect room = roomBesideWindow(&window, pointer);
    QVERIFY(room.contains(place));
    QVERIFY(room.contains(within));
    QVERIFY(!room.contains(QPoint(outside.x(), pointer.y())));
    QVERIFY(!room.contains(QPoint(pointer.x(), outside.y())));
}

void tst_wayland::popup_goesWherePointerHasMoreRoom_data()
{
    QTest::addColumn<QPoint>("pointer");
    QTest::addColumn<QPoint>("corner");
    QTest::newRow("near the top left") << nearTopLeft << QPoint(185, 150);
    QTest::newRow("near the bottom right") << nearBottomRight << QPoint(385, 210);
}

void tst_wayland::popup_goesWherePointerHasMoreRoom()
{
    QFETCH(QPoint, pointer);
    QWindow window;
    window.setGeometry(place);
    QTEST(placeBesidePointer(&window, pointer, offset, popup), "corner");
}

void tst_wayland::window_thatFillsItsOutput_isAllThereIs_data()
{
    QTest::addColumn<Qt::WindowState>("state");
    QTest::newRow("maximised") << Qt::WindowMaximized;
    QTest::newRow("full screen") << Qt::WindowFullScreen;
}

void tst_wayland::window_thatFillsItsOutput_isAllThereIs()
{
    QFETCH(Qt::WindowState, state);
    QWindow window;
    window.setGeometry(place);
    window.setWindowState(state);
    QCOMPARE(roomBesideWindow(&window, nearTopLeft), place);
    QCOMPARE(placeBesidePointer(&window, nearTopLeft, offset, popup), QPoint(185, 150));
    // Below and to the right there is too little room.
    QCOMPARE(placeBesidePointer(&window, nearBottomRight, offset, popup), QPoint(440, 260));
}

void tst_wayland::withoutWindow_roomIsEverywhere()
{
    QCOMPARE(roomBesideWindow(nullptr, nearTopLeft), everywhere());
    QCOMPARE(placeBesidePointer(nullptr, nearBottomRight, offset, popup), QPoint(515, 310));
}

void tst_wayland::menu_standsBesideTheWindowItBelongsTo()
{
    QWindow window;
    window.setGeometry(place);
    QWindow menu;
    menu.setFlags(Qt::Popup);
    menu.setGeometry(QRect(150, 120, 50, 160));
    QCOMPARE(placeBesidePointer(&menu, nearBottomRight, offset, popup), QPoint(385, 210));
    const QPoint inMenu(190, 130);
    QCOMPARE(placeBesidePointer(&menu, inMenu, offset, popup), QPoint(95, 160));
    menu.setTransientParent(&window);
    QCOMPARE(placeBesidePointer(&menu, inMenu, offset, popup), QPoint(225, 160));
    QCOMPARE(roomBesideWindow(&menu, inMenu), roomBesideWindow(&window, inMenu));
}

void tst_wayland::window_isTheReferences()
{
    QWidget window;
    const QWidget reference(&window);
    QVERIFY(!windowToStandBeside(&reference));
    window.show();
    QCOMPARE(windowToStandBeside(&reference), window.windowHandle());
    QApplication::setActiveWindow(nullptr);
    QVERIFY(!windowToStandBeside(nullptr));
    QApplication::setActiveWindow(&window);
    QCOMPARE(windowToStandBeside(nullptr), window.windowHandle());
}

QTEST_MAIN(tst_wayland)
#include "tst_wayland.moc"
