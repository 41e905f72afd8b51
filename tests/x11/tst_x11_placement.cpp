// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"
#include "x11/HintHost.h"
#include "x11/RealInput.h"

#include <QMenu>
#include <QQuickItem>
#include <QtTest>

using namespace Hintreels;

namespace {

const QPoint farAway(1000, 50);
const auto beside = [](HRContext &context) { context.set(placementKey, int(placementBeside)); };

QRect areaOnScreen(const QWidget &widget)
{
    return QRect(widget.mapToGlobal(QPoint(0, 0)), widget.size());
}

QRect screenArea()
{
    return QGuiApplication::primaryScreen()->availableGeometry();
}

/// Maximises a host's window, with its first button in the lower right corner.
bool maximize(HintHost &host, const QSize &button)
{
    host.window.showMaximized();
    if (!QTest::qWaitFor([&] { return host.window.width() == screenArea().width(); }))
        return false;
    const QRect inside = host.window.rect();
    host.red.setGeometry(QRect(
        inside.bottomRight() - QPoint(button.width(), button.height()) + QPoint(1, 1), button));
    host.red.raise();
    return true;
}

} // namespace

/// Where the popup stands beside its part, on a real X server with a window manager.
class tst_x11_placement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void tool_staysClickable_inTheCorner();
    void popup_keepsClearOfItsPart_whenContentGrows();
    void popup_keepsPointerClear_onCanvas();
    void popup_keepsMenuClear();
    void popup_goesToTheNextPart_whileItShows();
    void popup_stays_onTheWayFromItsPart();
};

void tst_x11_placement::init()
{
    RealInput::movePointer(farAway);
}

void tst_x11_placement::tool_staysClickable_inTheCorner()
{
    HintHost host(beside);
    QVERIFY(maximize(host, QSize(140, 30)));
    QSignalSpy clicked(&host.red, &QPushButton::clicked);
    QVERIFY(host.hover(host.red));
    QTRY_VERIFY(showsHint(host.popup(), Qt::red));
    QVERIFY(screenArea().contains(areaOf(host.popup())));
    QVERIFY(!areaOf(host.popup()).intersects(areaOnScreen(host.red)));

    RealInput::press();
    RealInput::release();

    QTRY_COMPARE(clicked.count(), 1);
}

void tst_x11_placement::popup_keepsClearOfItsPart_whenContentGrows()
{
    HintHost host(beside);
    QVERIFY(maximize(host, QSize(140, 30)));
    QVERIFY(host.hover(host.red));
    for (const int height : { 500, 80, 300 }) {
        host.popup().view()->rootObject()->setHeight(height);

        QTRY_COMPARE(host.popup().height(), height + 1);
        const QRect area = areaOf(host.popup());
        QVERIFY(screenArea().contains(area));
        QVERIFY(!area.intersects(areaOnScreen(host.red)));
        QVERIFY(areaOnScreen(host.red).top() - area.bottom() < 10);
    }
}

void tst_x11_placement::popup_keepsPointerClear_onCanvas()
{
    HintHost host(beside);
    QVERIFY(maximize(host, host.window.size()));
    host.red.setGeometry(host.window.rect());
    const QPoint pointer = screenArea().bottomRight() - QPoint(10, 10);
    RealInput::movePointer(pointer);
    QTRY_VERIFY(host.showsPopup());

    QTRY_VERIFY(showsHint(host.popup(), Qt::red));
    QVERIFY(!areaOf(host.popup()).contains(pointer));
    QVERIFY(screenArea().contains(areaOf(host.popup())));
}

void tst_x11_placement::popup_keepsMenuClear()
{
    HintHost host(beside);
    QMenu menu;
    menu.setObjectName("blue");
    for (const char *name : { "one", "two", "three", "four" })
        menu.addAction(name);
    menu.popup(QPoint(screenArea().right() - 50, 300));
    QVERIFY(QTest::qWaitForWindowExposed(&menu));
    RealInput::movePointer(menu.mapToGlobal(menu.actionGeometry(menu.actions().at(1)).center()));

    QTRY_VERIFY(host.showsPopup());
    QTRY_VERIFY(showsHint(host.popup(), Qt::blue));
    QVERIFY(!areaOf(host.popup()).intersects(menu.frameGeometry()));
    menu.hide();
}

void tst_x11_placement::popup_goesToTheNextPart_whileItShows()
{
    HintHost host(beside);
    host.window.resize(600, 260);
    host.blue.move(300, 20);
    QVERIFY(host.hover(host.red));
    QVERIFY(host.hover(host.blue));

    QTRY_VERIFY(showsHint(host.popup(), Qt::blue));
    QCOMPARE(areaOf(host.popup()).topLeft().x(), areaOnScreen(host.blue).left());
    QVERIFY(!areaOf(host.popup()).intersects(areaOnScreen(host.blue)));
}

void tst_x11_placement::popup_stays_onTheWayFromItsPart()
{
    HintHost host(beside);
    host.window.resize(700, 260);
    host.red.resize(660, 40);
    QVERIFY(host.hover(host.red));
    const QRect part = areaOnScreen(host.red);
    const QRect popup = areaOf(host.popup());

    QVERIFY(host.popup().isSafe(part.topRight()));
    QVERIFY(host.popup().isSafe((part.bottomRight() + popup.topRight()) / 2));
    QVERIFY(!host.popup().isSafe(part.bottomRight() + QPoint(0, 100)));
}

QTEST_MAIN(tst_x11_placement)
#include "tst_x11_placement.moc"
