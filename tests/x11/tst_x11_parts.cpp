// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "content/HRXmlElement.h"
#include "manager/HRManager.h"
#include "support/MessageGuard.h"
#include "support/RecordingHost.h"
#include "ui/popup/HRView.h"
#include "ui/popup/HRWidget.h"
#include "widgets/HRWidgetsInterface.h"
#include "widgets/PartsWindow.h"
#include "x11/QuickToolTips.h"
#include "x11/RealInput.h"

#include <QtTest>

using namespace Hintreels;

/// A real pointer on the parts of a real window.
class tst_x11_parts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void hint_appears_whenPointerRestsOnPart_data();
    void hint_appears_whenPointerRestsOnPart();
};

void tst_x11_parts::initTestCase()
{
    QApplication::setStyle(new QuickToolTips);
}

void tst_x11_parts::init()
{
    RealInput::movePointer(QPoint(1270, 790));
}

void tst_x11_parts::hint_appears_whenPointerRestsOnPart_data()
{
    QTest::addColumn<int>("row");
    // While its menu is open, all moves are that menu's: Qt tells of no tooltip then.
    const QString silent = "entry that opens a menu";
    for (int i = 0; i < partCases().size(); ++i) {
        if (partCases()[i].name != silent)
            QTest::newRow(partCases()[i].name) << i;
    }
}

void tst_x11_parts::hint_appears_whenPointerRestsOnPart()
{
    QFETCH(int, row);
    const PartCase &part = partCases()[row];
    const MessageGuard guard;
    TestPackages packages;
    packages.write("A.hintreels/ui/Popup.qml", rectangleQml(120, 80, "orange"));
    packages.writeControl("A", "a.xml",
        "<hintreel key='" + part.keys.first().toUtf8() + "' title='Hint'/>", "ui='ui/Popup.qml'");
    HRContext context;
    HRWidgetsInterface hints(context, { packages.path() });
    PartsWindow window;
    const Spot spot = part.spot(window);
    QVERIFY(QTest::qWaitForWindowExposed(spot.widget->window()));

    RealInput::movePointer(spot.global() - QPoint(1, 0));
    RealInput::movePointer(spot.global());

    QTRY_VERIFY(hints.manager()->widget() && hints.manager()->widget()->isVisible());
    const HRWidget &popup = *hints.manager()->widget();
    QCOMPARE(popup.view()->content()->attribute("key"), part.keys.first());
    QTRY_VERIFY(
        RealInput::shows(QRect(popup.pos() + QPoint(40, 30), QSize(20, 20)), QColor("orange")));
}

QTEST_MAIN(tst_x11_parts)
#include "tst_x11_parts.moc"
