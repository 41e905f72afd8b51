// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRWidget.h"
#include "x11/HintHost.h"
#include "x11/RealInput.h"

#include <QtTest>

using namespace Hintreels;

namespace {

constexpr int hideDelay = 600; // as HintHost sets it
const QPoint farAway(1000, 700);

/// What a host may do to a popup while it is hidden.
using Change = void (*)(QWidget &popup);

} // namespace

Q_DECLARE_METATYPE(Change)

/// The popup beside the pointer, on a real X server with a window manager.
class tst_x11_popup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void popup_paintsItsContent_whenPointerRestsOnWidget();
    void popup_stays_whilePointerIsInsideOrNear();
    void popup_goesAfterDelay_whenPointerLeavesApplication();
    void popup_followsToNextWidget_withNextContent();
    void pressBeside_hidesPopup_andReachesHost();
    void focus_staysInHost_afterClickInsidePopup();
    void pressBeside_keepsPopup_whenItMustStayOpen();
    void popup_isFullyVisible_atScreenEdges_data();
    void popup_isFullyVisible_atScreenEdges();
    void popup_hides_whenApplicationIsDeactivated();
    void popup_fadesOutAndPaintsAgain_whenShownAnew();
    void popup_paintsAgain_whenItsWindowWasRenewed_data();
    void popup_paintsAgain_whenItsWindowWasRenewed();
    void host_mayDeletePopup_whileItShows();
    void hints_leakNothing_whenShownInTurn();
};

void tst_x11_popup::init()
{
    RealInput::movePointer(farAway);
}

void tst_x11_popup::popup_paintsItsContent_whenPointerRestsOnWidget()
{
    HintHost host;
    QVERIFY(host.hover(host.red));
    // The pixel by which the popup is larger than its content included.
    QTRY_VERIFY(showsHint(host.popup(), Qt::red));
    QCOMPARE(host.popup().size(), QSize(201, 121));
}

void tst_x11_popup::popup_stays_whilePointerIsInsideOrNear()
{
    HintHost host;
    QVERIFY(host.hover(host.red));
    const QRect area = areaOf(host.popup());

    RealInput::movePointer(area.center());
    QVERIFY(host.otherPopupsGo());
    QVERIFY(host.popup().isVisible());

    RealInput::movePointer(area.bottomRight() + QPoint(15, 15));
    QVERIFY(host.otherPopupsGo());
    QVERIFY(host.popup().isVisible());
    QVERIFY(showsHint(host.popup(), Qt::red));
}

void tst_x11_popup::popup_goesAfterDelay_whenPointerLeavesApplication()
{
    HintHost host;
    QVERIFY(host.hover(host.red));
    QElapsedTimer sinceLeft;
    sinceLeft.start();
    RealInput::movePointer(farAway);

    QTRY_VERIFY(!host.popup().isVisible());

    QVERIFY(sinceLeft.elapsed() >= hideDelay);
    QTRY_VERIFY(!RealInput::shows(QRect(areaOf(host.popup()).center(), QSize(1, 1)), Qt::red));
}

void tst_x11_popup::popup_followsToNextWidget_withNextContent()
{
    HintHost host;
    QVERIFY(host.hover(host.red));
    const QPoint first = host.popup().pos();

    QVERIFY(host.hover(host.blue));

    const QPoint way = host.blue.pos() - host.red.pos();
    QVERIFY((host.popup().pos() - first - way).manhattanLength() < 5);
    QTRY_VERIFY(showsHint(host.popup(), Qt::blue));
}

void tst_x11_popup::pressBeside_hidesPopup_andReachesHost()
{
    HintHost host;
    QSignalSpy clicked(&host.plain, &QPushButton::clicked);
    QVERIFY(host.hover(host.red));

    RealInput::click(host.plain.mapToGlobal(host.plain.rect().center()));

    QTRY_COMPARE(clicked.count(), 1);
    QVERIFY(!host.popup().isVisible());
}

void tst_x11_popup::focus_staysInHost_afterClickInsidePopup()
{
    HintHost host;
    QVERIFY(host.hover(host.red));
    QVERIFY(host.field.hasFocus());

    RealInput::click(host.popup().geometry().center());
    QTRY_COMPARE(host.messages, QStringList{ "pressed" });
    RealInput::type("abc");

    QTRY_COMPARE(host.field.text(), QString("abc"));
    QVERIFY(host.window.isActiveWindow());
    QVERIFY(host.popup().isVisible());
}

void tst_x11_popup::pressBeside_keepsPopup_whenItMustStayOpen()
{
    HintHost host;
    QSignalSpy clicked(&host.plain, &QPushButton::clicked);
    QVERIFY(host.hover(host.red));
    RealInput::click(keeperOf(host.popup()));
    QTRY_COMPARE(host.messages, QStringList{ "pressed" });

    RealInput::click(host.plain.mapToGlobal(host.plain.rect().center()));

    QTRY_COMPARE(clicked.count(), 1);
    QVERIFY(host.otherPopupsGo());
    QVERIFY(host.popup().isVisible());
}

void tst_x11_popup::popup_isFullyVisible_atScreenEdges_data()
{
    QTest::addColumn<QPoint>("pointer");
    QTest::newRow("top left") << QPoint(-100, -100);
    QTest::newRow("top right") << QPoint(1279, 0);
    QTest::newRow("bottom left") << QPoint(0, 799);
    QTest::newRow("bottom right") << QPoint(1279, 799);
}

void tst_x11_popup::popup_isFullyVisible_atScreenEdges()
{
    QFETCH(QPoint, pointer);
    HintHost host([](HRContext &context) { context.set(hideDelayKey, 0); }); // it is not hovered

    host.show(host.red, pointer);

    QTRY_VERIFY(showsHint(host.popup(), Qt::red));
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QVERIFY2(screen.contains(areaOf(host.popup())), QTest::toString(areaOf(host.popup())));
}

void tst_x11_popup::popup_hides_whenApplicationIsDeactivated()
{
    HintHost host;
    QVERIFY(host.hover(host.red));

    QProcess other;
    other.start("xev", { "-geometry", "100x100+900+500" });
    QVERIFY(other.waitForStarted());

    QTRY_VERIFY(!host.popup().isVisible());
    other.kill();
    QVERIFY(other.waitForFinished());
}

void tst_x11_popup::popup_fadesOutAndPaintsAgain_whenShownAnew()
{
    HintHost host([](HRContext &context) { context.set(hideAnimationDurationKey, 200); });
    for (int i = 0; i < 3; ++i) {
        QVERIFY(host.hover(host.red));
        QTRY_VERIFY(showsHint(host.popup(), Qt::red));
        RealInput::movePointer(farAway);
        QTRY_VERIFY(!host.popup().isVisible());
    }
}

void tst_x11_popup::popup_paintsAgain_whenItsWindowWasRenewed_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("nothing changed") << Change([](QWidget &) {});
    QTest::newRow("flags of the widget") << Change([](QWidget &popup) {
        popup.setWindowFlag(Qt::WindowTransparentForInput);
        popup.setWindowFlag(Qt::WindowTransparentForInput, false);
    });
    QTest::newRow("flags of the window") << Change([](QWidget &popup) {
        QWindow *window = popup.windowHandle();
        window->setFlag(
            Qt::WindowStaysOnTopHint, !window->flags().testFlag(Qt::WindowStaysOnTopHint));
    });
}

void tst_x11_popup::popup_paintsAgain_whenItsWindowWasRenewed()
{
    QFETCH(Change, change);
    HintHost host;
    for (const QPushButton *button : { &host.red, &host.blue, &host.red }) {
        QVERIFY(host.hover(*button));
        QTRY_VERIFY(showsHint(host.popup(), button->text()));
        host.popup().hide();
        change(host.popup());
        RealInput::movePointer(farAway);
    }
}

void tst_x11_popup::host_mayDeletePopup_whileItShows()
{
    HintHost host;
    QVERIFY(host.hover(host.red));

    delete &host.popup();

    QVERIFY(host.hover(host.blue));
    QTRY_VERIFY(showsHint(host.popup(), Qt::blue));
}

namespace {

/// What grows when something is forgotten.
struct Holdings
{
    int objects;
    int windows;
    int serverWindows;
    int pages;

    explicit Holdings(const HintHost &host)
        : objects(host.popup().findChildren<QObject *>().size())
        , windows(QGuiApplication::allWindows().size())
        , serverWindows(RealInput::serverWindowCount())
        , pages(residentPages())
    {
    }

    static int residentPages()
    {
        QFile file("/proc/self/statm");
        return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').at(1).toInt() : -1;
    }
};

/// Shows hints in turn: every third one after the popup was hidden, the others one upon the other.
void showHints(const HintHost &host, int count)
{
    for (int i = 0; i < count; ++i) {
        const QPushButton &button = i % 2 ? host.red : host.blue;
        host.show(const_cast<QPushButton &>(button), QPoint(300 + i % 100, 300));
        QCoreApplication::processEvents();
        if (i % 3 == 0)
            host.popup().hide();
    }
}

} // namespace

void tst_x11_popup::hints_leakNothing_whenShownInTurn()
{
    [[maybe_unused]] constexpr int allowedPages = 1000; // 4 MB, less than 8 kB a hint
    HintHost host;
    showHints(host, 50);
    const Holdings before(host);

    showHints(host, 500);

    const Holdings after(host);
    QCOMPARE(after.objects, before.objects);
    QCOMPARE(after.windows, before.windows);
    QCOMPARE(after.serverWindows, before.serverWindows);
#ifndef __SANITIZE_ADDRESS__ // which holds freed memory back
    QVERIFY2(after.pages - before.pages < allowedPages,
        qPrintable(QString("%1 pages more").arg(after.pages - before.pages)));
#endif
}

QTEST_MAIN(tst_x11_popup)
#include "tst_x11_popup.moc"
