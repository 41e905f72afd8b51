// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRWidgetPrivate_p.h"
#include "ui/popup/PopupFixture.h"

#include "ui/popup/hostToolTip_p.h"

#include <QMenu>
#include <QMouseEvent>
#include <QToolTip>

using namespace Hintreels;

namespace {

const QRect referenceArea(300, 400, 100, 40);
const QPoint inReference(320, 420);
const QPoint inPopup = showPosition + QPoint(20, 20);

/// What the pointer is over, in a window; a hint of another hides at once.
struct Fixture : PopupFixture
{
    explicit Fixture(const QMap<int, QVariant> &settings = {})
        : PopupFixture(settings)
    {
        reference.setGeometry(referenceArea);
        reference.show();
    }

    ~Fixture() { hideHostToolTips(); }

    HRWidgetPrivate &taker() const { return HRWidgetPrivate::of(*popup); }

    QWidget *shownToolTip(const QPoint &position) const
    {
        QToolTip::showText(position, "text");
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            if (isHostToolTip(*window) && window->isVisible())
                return window;
        }
        qFatal("the tool tip is not shown");
    }

    bool pointer(QObject *watched, QEvent::Type type, const QPoint &position) const
    {
        QMouseEvent event(
            type, position, position, position, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        return taker().takeEvent(*watched, event);
    }
};

/// A host's window that does something when it is painted.
struct PaintedWindow : QWidget
{
    void paintEvent(QPaintEvent *) override
    {
        if (painted)
            std::exchange(painted, nullptr)();
    }

    std::function<void()> painted;
};

/// Deletes a popup as soon as its view hears that the pointer has left it.
struct Deleter : QObject
{
    explicit Deleter(HRWidget *condemned)
        : popup(condemned)
    {
        popup->view()->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::Leave)
            return false;
        delete popup;
        return true;
    }

    HRWidget *popup;
};

} // namespace

/// What other windows' events do to a popup that is seen.
class tst_HRWidgetEvents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toolTip_andPopup_areNotSeenTogether_data();
    void toolTip_andPopup_areNotSeenTogether();
    void toolTip_takesThePopupAway_whenThePointerIsNowhere();
    void press_besideAMenu_isThePopups_whereHostWantsIt_data();
    void press_besideAMenu_isThePopups_whereHostWantsIt();
    void host_mayDeleteThePopup_whenThePointerLeavesIt();
    void host_mayDelete_whenItsWindowIsPainted_data();
    void host_mayDelete_whenItsWindowIsPainted();
    void key_takesThePopupAway_whereHostWantsIt_data();
    void key_takesThePopupAway_whereHostWantsIt();
    void sceneThatFails_takesThePopupAway_whereItIsRequired_data();
    void sceneThatFails_takesThePopupAway_whereItIsRequired();
};

void tst_HRWidgetEvents::toolTip_andPopup_areNotSeenTogether_data()
{
    QTest::addColumn<bool>("isWanted");
    QTest::addColumn<bool>("stays");
    QTest::addColumn<QRect>("part");
    QTest::addColumn<QPoint>("pointer");
    QTest::addColumn<bool>("isPopupShown");
    QTest::addColumn<bool>("isToolTipKept"); // from the screen
    const QPoint elsewhere(600, 60);
    const QRect part(referenceArea.topLeft(), QSize(10, 10));
    QTest::newRow("of the reference") << true << false << QRect() << inReference << true << true;
    QTest::newRow("of the part") << true << false << part << part.center() << true << true;
    QTest::newRow("of another part") << true << false << part << inReference << false << false;
    QTest::newRow("of another widget") << true << false << QRect() << elsewhere << false << false;
    QTest::newRow("of another, and the popup stays")
        << true << true << QRect() << elsewhere << true << false;
    QTest::newRow("not wanted") << false << false << QRect() << inReference << true << false;
    QTest::newRow("of another, not wanted")
        << false << false << QRect() << elsewhere << true << false;
}

void tst_HRWidgetEvents::toolTip_andPopup_areNotSeenTogether()
{
    QFETCH(bool, isWanted);
    QFETCH(bool, stays);
    QFETCH(QRect, part);
    QFETCH(QPoint, pointer);
    Fixture f;
    f.show();
    f.host->context().set(hostToolTipsKey, isWanted);
    f.popup->view()->setStayOpen(stays);
    f.taker().area = part;
    QCursor::setPos(pointer);
    QWidget *toolTip = f.shownToolTip(pointer);
    QShowEvent event;
    QVERIFY(!f.taker().takeEvent(*toolTip, event));
    QTEST(f.popup->isVisible(), "isPopupShown");
    QTEST(toolTip->testAttribute(Qt::WA_DontShowOnScreen), "isToolTipKept");
}

// As on Wayland, when the pointer has left all windows.
void tst_HRWidgetEvents::toolTip_takesThePopupAway_whenThePointerIsNowhere()
{
    Fixture f({ { hostToolTipsKey, true } });
    QCursor::setPos(inReference);
    f.show();
    QVERIFY(f.taker().isSafe(QPoint(inPopup)));
    QVERIFY(!f.taker().isSafe(std::nullopt));
    QWindow window;
    QEvent left(QEvent::Leave);
    f.taker().watch.eventFilter(&window, &left);
    QWidget *toolTip = f.shownToolTip(inReference);
    QShowEvent event;
    QVERIFY(!f.taker().takeEvent(*toolTip, event));
    QVERIFY(!f.popup->isVisible());
}

void tst_HRWidgetEvents::press_besideAMenu_isThePopups_whereHostWantsIt_data()
{
    QTest::addColumn<bool>("isWanted");
    QTest::addColumn<bool>("isMenuOpen");
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("in the popup") << true << true << inPopup << true;
    QTest::newRow("beside the popup") << true << true << farAway << false;
    QTest::newRow("without a menu") << true << false << inPopup << false;
    QTest::newRow("not wanted") << false << true << inPopup << false;
}

void tst_HRWidgetEvents::press_besideAMenu_isThePopups_whereHostWantsIt()
{
    QFETCH(bool, isWanted);
    QFETCH(bool, isMenuOpen);
    QFETCH(QPoint, position);
    Fixture f({ { popupPressesKey, isWanted } });
    QMenu menu(&f.reference);
    menu.addAction("entry");
    f.show();
    if (isMenuOpen)
        menu.popup(farAway);
    QTEST(f.pointer(&menu, QEvent::MouseButtonPress, position), "isTaken");
    QVERIFY(f.popup->isVisible());
}

void tst_HRWidgetEvents::host_mayDeleteThePopup_whenThePointerLeavesIt()
{
    Fixture f({ { popupPressesKey, true } });
    QMenu menu(&f.reference);
    menu.addAction("entry");
    f.show();
    menu.popup(farAway);
    Deleter deleter(f.popup);
    QVERIFY(f.pointer(&menu, QEvent::MouseMove, inPopup));
    QVERIFY(!f.pointer(&menu, QEvent::MouseMove, farAway));
    QVERIFY(!f.popup);
}

void tst_HRWidgetEvents::host_mayDelete_whenItsWindowIsPainted_data()
{
    QTest::addColumn<bool>("isPopup");
    QTest::newRow("popup") << true;
    QTest::newRow("its view") << false;
}

void tst_HRWidgetEvents::host_mayDelete_whenItsWindowIsPainted()
{
    QFETCH(bool, isPopup);
    Fixture f({ { hostColorsKey, true } });
    f.show();
    PaintedWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.painted = [&f, isPopup] {
        if (isPopup)
            delete f.popup;
        else
            delete f.popup->view();
    };
    f.host->show("ink", showPosition, &window);
    QCOMPARE(f.popup.isNull(), isPopup);
    QVERIFY(isPopup || !f.popup->view());
}

void tst_HRWidgetEvents::key_takesThePopupAway_whereHostWantsIt_data()
{
    QTest::addColumn<bool>("isWanted");
    QTest::addColumn<bool>("stays");
    QTest::newRow("wanted") << true << false;
    QTest::newRow("wanted, and the popup stays") << true << true;
    QTest::newRow("not wanted") << false << false;
}

void tst_HRWidgetEvents::key_takesThePopupAway_whereHostWantsIt()
{
    QFETCH(bool, isWanted);
    QFETCH(bool, stays);
    Fixture f({ { nativeDismissalKey, isWanted } });
    f.show();
    f.popup->view()->setStayOpen(stays);
    QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    QVERIFY(!f.taker().takeEvent(f.reference, key));
    QCOMPARE(f.popup->isVisible(), !isWanted || stays);
}

void tst_HRWidgetEvents::sceneThatFails_takesThePopupAway_whereItIsRequired_data()
{
    QTest::addColumn<bool>("isRequired");
    QTest::newRow("required") << true;
    QTest::newRow("not required") << false;
}

void tst_HRWidgetEvents::sceneThatFails_takesThePopupAway_whereItIsRequired()
{
    QFETCH(bool, isRequired);
    Fixture f({ { requireUiKey, isRequired } });
    f.show();
    f.popup->view()->setSource(
        QUrl::fromLocalFile(f.packages.write("Tools.hintreels/ui/Broken.qml", "Item {")));
    QCOMPARE(f.popup->view()->status(), QQuickView::Error);
    QCOMPARE(f.popup->isVisible(), !isRequired);
}

QTEST_MAIN(tst_HRWidgetEvents)
#include "tst_HRWidgetEvents.moc"
