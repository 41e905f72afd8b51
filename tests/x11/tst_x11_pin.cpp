// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRManager.h"
#include "ui/popup/HRWidget.h"
#include "x11/HintHost.h"
#include "x11/RealInput.h"

#include <QtTest>

using namespace Hintreels;

namespace {

const QPoint farAway(1000, 700);

// Openbox draws the button that closes a window into the corner of its frame.
QPoint closeButtonOf(const QWidget &window)
{
    return window.frameGeometry().topRight() + QPoint(-11, 10);
}

} // namespace

/// A popup that was detached from the pointer, on a real X server with a window manager.
class tst_x11_pin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void pinnedPopup_staysAndPaints_inItsWindow_data();
    void pinnedPopup_staysAndPaints_inItsWindow();
    void pinnedPopup_isClosed_whileNewPopupServesNextWidget_data();
    void pinnedPopup_isClosed_whileNewPopupServesNextWidget();
    void pinnedPopup_takesKeys_whenClicked_data();
    void pinnedPopup_takesKeys_whenClicked();
    void pinnedPopup_paints_whenKeptOnTop_data();
    void pinnedPopup_paints_whenKeptOnTop();
    void hostWindow_paintsPinnedPopup_whenShownAnew();
    void pinnedPopup_isOnScreenWithItsFrame_data();
    void pinnedPopup_isOnScreenWithItsFrame();

private:
    void addWindows();
    /// Hovers the red button and pins its hint, into a window of the host where the row says so.
    QPointer<HRWidget> pin(HintHost &host);

    std::unique_ptr<QWidget> m_hostWindow;
};

void tst_x11_pin::init()
{
    RealInput::movePointer(farAway);
}

void tst_x11_pin::addWindows()
{
    QTest::addColumn<bool>("inHostWindow");
    QTest::newRow("window of its own") << false;
    QTest::newRow("window of the host") << true;
}

QPointer<HRWidget> tst_x11_pin::pin(HintHost &host)
{
    QFETCH(bool, inHostWindow);
    m_hostWindow.reset(inHostWindow ? new QWidget(nullptr, Qt::Tool) : nullptr);
    host.reservedWindow = m_hostWindow.get();
    if (!host.hover(host.red))
        return nullptr;
    const QPointer<HRWidget> popup = &host.popup();
    RealInput::click(pinOf(*popup));
    const bool pinned = QTest::qWaitFor([&] { return host.manager()->widget() != popup; });
    return pinned ? popup : nullptr;
}

void tst_x11_pin::pinnedPopup_staysAndPaints_inItsWindow_data()
{
    addWindows();
}

void tst_x11_pin::pinnedPopup_staysAndPaints_inItsWindow()
{
    HintHost host;
    const QPointer<HRWidget> pinned = pin(host);
    QVERIFY(pinned);
    RealInput::movePointer(farAway);
    QVERIFY(host.otherPopupsGo());

    QVERIFY(pinned->isVisible());
    QTRY_VERIFY(showsHint(*pinned, Qt::red));
}

void tst_x11_pin::pinnedPopup_isClosed_whileNewPopupServesNextWidget_data()
{
    addWindows();
}

void tst_x11_pin::pinnedPopup_isClosed_whileNewPopupServesNextWidget()
{
    QFETCH(bool, inHostWindow);
    HintHost host;
    const QPointer<HRWidget> pinned = pin(host);
    QVERIFY(pinned);
    QTRY_VERIFY(showsHint(*pinned, Qt::red));
    pinned->window()->move(600, 400);

    QVERIFY(host.hover(host.blue));
    QTRY_VERIFY(showsHint(host.popup(), Qt::blue));
    QTRY_VERIFY(showsHint(*pinned, Qt::red));

    RealInput::click(closeButtonOf(*pinned->window()));
    QTRY_VERIFY(inHostWindow ? !m_hostWindow->isVisible() : pinned.isNull());
    QVERIFY(host.hover(host.red));
    QTRY_VERIFY(showsHint(host.popup(), Qt::red));
}

void tst_x11_pin::pinnedPopup_takesKeys_whenClicked_data()
{
    addWindows();
}

void tst_x11_pin::pinnedPopup_takesKeys_whenClicked()
{
    HintHost host;
    const QPointer<HRWidget> pinned = pin(host);
    QVERIFY(pinned);
    QTRY_VERIFY(showsHint(*pinned, Qt::red));
    host.messages.clear();

    RealInput::click(areaOf(*pinned).center());
    QTRY_COMPARE(host.messages, QStringList{ "pressed" });
    RealInput::type("x");

    QTRY_COMPARE(host.messages, (QStringList{ "pressed", "typed x" }));
    QCOMPARE(host.field.text(), QString());
}

void tst_x11_pin::pinnedPopup_paints_whenKeptOnTop_data()
{
    addWindows();
}

void tst_x11_pin::pinnedPopup_paints_whenKeptOnTop()
{
    HintHost host;
    const QPointer<HRWidget> pinned = pin(host);
    QVERIFY(pinned);
    for (const bool on : { true, false }) {
        host.manager()->setStayOnTop(on);
        QTRY_VERIFY(showsHint(*pinned, Qt::red));
    }
}

void tst_x11_pin::hostWindow_paintsPinnedPopup_whenShownAnew()
{
    HintHost host;
    QWidget window;
    host.reservedWindow = &window;
    QVERIFY(host.hover(host.red));
    const QPointer<HRWidget> popup = &host.popup();
    RealInput::click(pinOf(*popup));
    QTRY_VERIFY(window.isVisible());

    window.setWindowFlag(Qt::WindowStaysOnTopHint);
    window.show();

    QTRY_VERIFY(showsHint(*popup, Qt::red));
}

void tst_x11_pin::pinnedPopup_isOnScreenWithItsFrame_data()
{
    addWindows();
}

void tst_x11_pin::pinnedPopup_isOnScreenWithItsFrame()
{
    HintHost host;
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    host.window.move(screen.center().x(), screen.bottom() - 300);
    const QPointer<HRWidget> pinned = pin(host);
    QVERIFY(pinned);

    const QWidget *window = pinned->window();
    QTRY_VERIFY(window->frameGeometry() != window->geometry());
    QTRY_VERIFY(screen.contains(window->frameGeometry()));
    QTRY_VERIFY(showsHint(*pinned, Qt::red));
    // From then on it stays where its reader puts it.
    pinned->window()->move(screen.bottomLeft() - QPoint(0, 50));
    pinned->contentResized();
    QVERIFY(!screen.contains(window->frameGeometry()));
}

QTEST_MAIN(tst_x11_pin)
#include "tst_x11_pin.moc"
