// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"
#include "wayland/WestonHost.h"
#include "x11/RealInput.h"

#include <QQuickItem>
#include <QtTest>

#include <memory>

using namespace Hintreels;

/// Where popups stand on a real Wayland compositor, which tells no window its place.
class tst_wayland_place : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void popup_standsOnSidesWithMoreRoom_insideItsWindow_data();
    void popup_standsOnSidesWithMoreRoom_insideItsWindow();
    void popup_staysBesidePointer_whenItGrows();
    void popup_fitsIntoWindow_thatFillsItsOutput_data();
    void popup_fitsIntoWindow_thatFillsItsOutput();
    void popup_standsBesideItsPart_whereTheHostWantsThat();
};

namespace {

const QSize offset(35, 30); // between pointer and popup
const QSize popupSize(201, 121);

/// Gives the window a size at which a popup has room in it on either side of its buttons.
bool widen(WestonHost &host)
{
    host.window.resize(400, 300);
    return host.find();
}

/// A compositor may hear of a new window before it hears of the pointer.
bool opensOn(int output, std::unique_ptr<WestonHost> &host)
{
    host.reset();
    restPointerElsewhere(output);
    host = std::make_unique<WestonHost>();
    return host->output() == output;
}

} // namespace

void tst_wayland_place::init()
{
    restPointerElsewhere();
}

void tst_wayland_place::popup_standsOnSidesWithMoreRoom_insideItsWindow_data()
{
    QTest::addColumn<QPoint>("button");
    QTest::addColumn<bool>("right");
    QTest::addColumn<bool>("below");
    QTest::newRow("upper left") << QPoint(10, 10) << true << true;
    QTest::newRow("upper right") << QPoint(230, 10) << false << true;
    QTest::newRow("lower left") << QPoint(10, 250) << true << false;
    QTest::newRow("lower right") << QPoint(230, 250) << false << false;
}

void tst_wayland_place::popup_standsOnSidesWithMoreRoom_insideItsWindow()
{
    QFETCH(QPoint, button);
    QFETCH(bool, right);
    QFETCH(bool, below);
    WestonHost host;
    QVERIFY(widen(host));
    host.red.move(button);

    QVERIFY(host.hover(host.red));

    // The pointer arrives by way of the pixel above and to the left, and may rest there long
    // enough.
    const QPoint pointer = host.red.mapToGlobal(host.red.rect().center());
    const QRect area = areaOf(host.popup());
    const int across = right ? area.left() - pointer.x() : pointer.x() - area.right() - 1;
    const int down = below ? area.top() - pointer.y() : pointer.y() - area.bottom() - 1;
    QVERIFY2(qAbs(across - offset.width()) <= 1, qPrintable(QString::number(across)));
    QVERIFY2(qAbs(down - offset.height()) <= 1, qPrintable(QString::number(down)));
    QVERIFY(eventually([&] { return showsHint(host.popup(), Qt::red); }));
    QVERIFY(eventually(
        [] { return RealInput::boundsOf(Qt::red).size() == popupSize * outputScale(); }));
}

void tst_wayland_place::popup_staysBesidePointer_whenItGrows()
{
    WestonHost host;
    QVERIFY(widen(host));
    host.red.move(230, 250);
    QVERIFY(host.hover(host.red));
    QVERIFY(eventually([&] { return showsHint(host.popup(), Qt::red); }));
    const int bottom = areaOf(host.popup()).bottom();

    host.popup().view()->rootObject()->setHeight(170);

    QVERIFY(eventually([&] { return host.popup().height() == 171; }));
    QCOMPARE(areaOf(host.popup()).bottom(), bottom);
    QVERIFY(eventually([&] { return showsHint(host.popup(), Qt::red); }));
}

void tst_wayland_place::popup_fitsIntoWindow_thatFillsItsOutput_data()
{
    QTest::addColumn<bool>("fullScreen");
    QTest::addColumn<int>("output");
    QTest::newRow("maximised") << false << 0;
    QTest::newRow("maximised, on the second output") << false << 1;
    QTest::newRow("full screen") << true << 0;
    QTest::newRow("full screen, on the second output") << true << 1;
}

void tst_wayland_place::popup_fitsIntoWindow_thatFillsItsOutput()
{
    QFETCH(bool, fullScreen);
    QFETCH(int, output);
    std::unique_ptr<WestonHost> opened;
    QVERIFY(eventually([&] { return opensOn(output, opened); }));
    WestonHost &host = *opened;
    host.window.setWindowState(fullScreen ? Qt::WindowFullScreen : Qt::WindowMaximized);
    QVERIFY(eventually([&] { return host.window.width() > 600; }));
    QVERIFY(host.find());
    host.red.move(host.window.rect().bottomRight() - QPoint(170, 50));

    QVERIFY(host.hover(host.red));

    const QRect area = outputOnScreen(output);
    QVERIFY(eventually([&] {
        const QRect red = RealInput::boundsOf(Qt::red);
        return red.size() == popupSize * outputScale() && red.bottomRight() == area.bottomRight();
    }));
}

void tst_wayland_place::popup_standsBesideItsPart_whereTheHostWantsThat()
{
    WestonHost host([](HRContext &context) { context.set(placementKey, int(placementBeside)); });
    QVERIFY(widen(host));
    host.red.move(230, 250);

    QVERIFY(host.hover(host.red));

    const QRect button(host.red.mapToGlobal(QPoint(0, 0)), host.red.size());
    QVERIFY(areaOf(host.popup()).bottom() < button.top());
    QVERIFY(eventually([&] { return showsHint(host.popup(), Qt::red); }));
}

QTEST_MAIN(tst_wayland_place)
#include "tst_wayland_place.moc"
