// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"
#include "wayland/WestonHost.h"
#include "x11/RealInput.h"

#include <QQuickItem>
#include <QTimer>
#include <QtTest>

using namespace Hintreels;

/// The popup beside the pointer, on a real Wayland compositor.
class tst_wayland_popup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void popup_paintsItsContent_whenPointerRestsOnWidget();
    void popup_followsToNextWidget_withNextContent();
    void popup_paintsItself_beforeItsContent();
    void popup_growsWithItsContent();
    void popup_goesAfterDelay_whenPointerLeavesLastWindow();
    void time_stops_whenPointerComesBackIntoPopup();
    void popup_takesItsTimeAndPaintsAgain_whenItShouldFade();
    void popup_goesWithItsWindow();
    void host_mayDeletePopup_whileItShows();
};

namespace {

/// Whether a popup was free to paint itself each time that it appeared.
class Appearances : public QObject
{
public:
    explicit Appearances(QWidget &popup) { popup.installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show)
            free.append(static_cast<QWidget *>(watched)->updatesEnabled());
        return false;
    }

    QVector<bool> free;
};

/// Whether the time until the popup hides runs.
bool isTimeRunning(const WestonHost &host)
{
    return host.popup().findChild<QTimer *>()->isActive();
}

} // namespace

void tst_wayland_popup::init()
{
    restPointerElsewhere();
}

void tst_wayland_popup::popup_paintsItsContent_whenPointerRestsOnWidget()
{
    WestonHost host;
    QVERIFY(host.hover(host.red));
    QVERIFY(eventually([&] { return showsHint(host.popup(), Qt::red); }));
    QCOMPARE(host.popup().size(), QSize(201, 121));
}

void tst_wayland_popup::popup_followsToNextWidget_withNextContent()
{
    WestonHost host;
    QVERIFY(host.hover(host.red));
    QVERIFY(eventually([&] { return showsHint(host.popup(), Qt::red); }));

    QVERIFY(host.hover(host.blue));

    QVERIFY(eventually([&] { return showsHint(host.popup(), Qt::blue); }));
    QVERIFY(RealInput::boundsOf(Qt::red).isEmpty());
}

void tst_wayland_popup::popup_paintsItself_beforeItsContent()
{
    WestonHost host;
    QVERIFY(host.hover(host.red));
    QVERIFY(eventually([&] { return showsHint(host.popup(), Qt::red); }));
    const Appearances appearances(host.popup());

    QVERIFY(host.hover(host.blue));

    // Its content is painted only once the popup is there, and would have to wait for ever.
    QVERIFY(!appearances.free.isEmpty() && !appearances.free.contains(false));
    QVERIFY(eventually([&] { return showsHint(host.popup(), Qt::blue); }));
}

void tst_wayland_popup::popup_growsWithItsContent()
{
    WestonHost host;
    QVERIFY(host.hover(host.red));
    QVERIFY(eventually([&] { return showsHint(host.popup(), Qt::red); }));

    host.popup().view()->rootObject()->setHeight(170);

    QVERIFY(eventually([&] { return host.popup().size() == QSize(201, 171); }));
    QVERIFY(eventually([&] { return showsHint(host.popup(), Qt::red); }));
}

void tst_wayland_popup::popup_goesAfterDelay_whenPointerLeavesLastWindow()
{
    WestonHost host;
    QVERIFY(host.hover(host.red));
    QVERIFY(!isTimeRunning(host));

    restPointerElsewhere();

    QVERIFY(eventually([&] { return !host.popup().isVisible(); }));
    QVERIFY(eventually([&] { return RealInput::boundsOf(Qt::red).isEmpty(); }));
}

void tst_wayland_popup::time_stops_whenPointerComesBackIntoPopup()
{
    WestonHost host([](HRContext &context) { context.set(hideDelayKey, 3600 * 1000); });
    QVERIFY(host.hover(host.red));
    QVERIFY(eventually([&] { return showsHint(host.popup(), Qt::red); }));
    const QPoint middle = RealInput::boundsOf(Qt::red).center();
    restPointerElsewhere();
    QVERIFY(eventually([&] { return isTimeRunning(host); }));

    RealInput::movePointer(middle); // of the screen's

    QVERIFY(eventually([&] { return !isTimeRunning(host); }));
    QVERIFY(host.popup().isVisible());
}

void tst_wayland_popup::popup_takesItsTimeAndPaintsAgain_whenItShouldFade()
{
    WestonHost host([](HRContext &context) {
        context.set(showAnimationDurationKey, 100);
        context.set(hideAnimationDurationKey, 100);
    });
    for (int i = 0; i < 3; ++i) {
        QVERIFY(host.find());
        QVERIFY(host.hover(host.red));
        QVERIFY(eventually([&] { return showsHint(host.popup(), Qt::red); }));
        restPointerElsewhere();
        QVERIFY(eventually([&] { return !host.popup().isVisible(); }));
    }
}

void tst_wayland_popup::popup_goesWithItsWindow()
{
    WestonHost host;
    QVERIFY(host.hover(host.red));
    QVERIFY(eventually([&] { return showsHint(host.popup(), Qt::red); }));

    host.window.hide();
    QVERIFY(!host.popup().isVisible());

    restPointerElsewhere();
    host.window.show();
    QVERIFY(host.find());
    QVERIFY(host.hover(host.blue));
    QVERIFY(eventually([&] { return showsHint(host.popup(), Qt::blue); }));
}

void tst_wayland_popup::host_mayDeletePopup_whileItShows()
{
    WestonHost host;
    QVERIFY(host.hover(host.red));
    QVERIFY(eventually([&] { return showsHint(host.popup(), Qt::red); }));

    delete &host.popup();

    QVERIFY(eventually([] { return RealInput::boundsOf(Qt::red).isEmpty(); }));
    QVERIFY(host.hover(host.blue));
    QVERIFY(eventually([&] { return showsHint(host.popup(), Qt::blue); }));
}

QTEST_MAIN(tst_wayland_popup)
#include "tst_wayland_popup.moc"
