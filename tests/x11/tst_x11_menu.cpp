// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/HRManager.h"
#include "ui/popup/HRWidget.h"
#include "x11/HintHost.h"
#include "x11/RealInput.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QMenu>
#include <QtTest>

using namespace Hintreels;

namespace {

const QPoint farAway(1000, 700);

/// A host with a menu and a combo box, whose open list takes all that the pointer does.
struct Host : HintHost
{
    explicit Host(bool takesPresses)
        : HintHost([takesPresses](HRContext &context) {
            context.set(hideDelayKey, 0);
            context.set(popupPressesKey, takesPresses);
            context.set(nativeDismissalKey, true);
            context.set(placementKey, int(placementBeside));
        })
    {
        menu.setObjectName("blue");
        menu.addActions({ &action, &further });
        QObject::connect(&action, &QAction::triggered, &menu, [this] { ++triggered; });
        combo.addItems({ "one", "two", "three" });
        combo.view()->viewport()->setObjectName("blue");
        combo.setGeometry(20, 140, 160, 40);
        combo.raise();
        combo.show();
    }

    /// Opens the menu, or the list, and rests the pointer there until the hint shows.
    bool open(const QString &what)
    {
        if (what == "menu")
            menu.popup(window.geometry().topRight() + QPoint(100, 0));
        else
            combo.showPopup();
        const QWidget *list = QApplication::activePopupWidget();
        if (!list || !QTest::qWaitForWindowExposed(const_cast<QWidget *>(list)))
            return false;
        RealInput::movePointer(list->mapToGlobal(QPoint(list->width() / 2, 15)));
        return QTest::qWaitFor([this] { return showsPopup(); })
            && QTest::qWaitFor([this] { return showsHint(popup(), Qt::blue); });
    }

    QAction action{ "Open" };
    QAction further{ "Save" };
    QMenu menu{ &window };
    QComboBox combo{ &window };
    int triggered = 0;
};

void addLists()
{
    QTest::addColumn<QString>("list");
    QTest::newRow("menu") << "menu";
    QTest::newRow("list of a combo box") << "combo box";
}

} // namespace

/// The pointer in a menu's hint, on a real X server with a window manager.
class tst_x11_menu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void press_isThePopups_data() { addLists(); }
    void press_isThePopups();
    void wheel_isThePopups_data() { addLists(); }
    void wheel_isThePopups();
    void pin_isPressed_whileMenuStaysOpen_data() { addLists(); }
    void pin_isPressed_whileMenuStaysOpen();
    void press_isTheMenus_outsideThePopup();
    void press_closesMenu_withoutTheSetting();
};

void tst_x11_menu::init()
{
    RealInput::movePointer(farAway);
}

void tst_x11_menu::press_isThePopups()
{
    QFETCH(QString, list);
    Host host(true);
    QVERIFY(host.open(list));
    const QPointer<QWidget> open = QApplication::activePopupWidget();

    RealInput::click(areaOf(host.popup()).center());
    QTRY_COMPARE(host.messages, QStringList{ "pressed" });
    RealInput::click(areaOf(host.popup()).center());
    QTRY_COMPARE(host.messages.size(), 2);

    QVERIFY(open && open->isVisible());
    QVERIFY(host.popup().isVisible());
    QCOMPARE(QApplication::activePopupWidget(), open.data());
}

void tst_x11_menu::wheel_isThePopups()
{
    QFETCH(QString, list);
    Host host(true);
    QVERIFY(host.open(list));
    RealInput::movePointer(areaOf(host.popup()).center());
    RealInput::scroll();
    QTRY_COMPARE(host.messages, QStringList{ "scrolled" });
    QVERIFY(QApplication::activePopupWidget());
    QVERIFY(host.popup().isVisible());
}

void tst_x11_menu::pin_isPressed_whileMenuStaysOpen()
{
    QFETCH(QString, list);
    Host host(true);
    QVERIFY(host.open(list));
    const QPointer<HRWidget> popup = &host.popup();
    RealInput::click(pinOf(*popup));
    QTRY_VERIFY(host.manager()->widget() != popup);
    QVERIFY(popup && popup->isVisible());
    QTRY_VERIFY(showsHint(*popup, Qt::blue));
    QVERIFY(QApplication::activePopupWidget());
    delete popup;
}

void tst_x11_menu::press_isTheMenus_outsideThePopup()
{
    Host host(true);
    QVERIFY(host.open("menu"));
    RealInput::movePointer(areaOf(host.popup()).center());
    RealInput::click(host.menu.mapToGlobal(host.menu.actionGeometry(&host.action).center()));
    QTRY_COMPARE(host.triggered, 1);
    QVERIFY(!host.menu.isVisible());
    QVERIFY(!host.popup().isVisible());
    QCOMPARE(host.messages, QStringList());
}

void tst_x11_menu::press_closesMenu_withoutTheSetting()
{
    Host host(false);
    QVERIFY(host.open("menu"));
    RealInput::click(areaOf(host.popup()).center());
    QTRY_VERIFY(!host.menu.isVisible());
    QCOMPARE(host.messages, QStringList());
}

QTEST_MAIN(tst_x11_menu)
#include "tst_x11_menu.moc"
