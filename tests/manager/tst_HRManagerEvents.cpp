// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "manager/ManagerFixture.h"

#include <QHelpEvent>
#include <QLabel>
#include <QMouseEvent>

using namespace Hintreels;

namespace {

void sendMouse(QObject *target, QEvent::Type type, const QPoint &globalPos)
{
    QMouseEvent event(type, QPointF(1, 1), globalPos, Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(target, &event);
}

} // namespace

class tst_HRManagerEvents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eventFilter_showsOnToolTip();
    void eventFilter_hidesOnDeactivation();
    void eventFilter_isNotInstalledByDefault();
    void mouseButtonEventFilter_hidesPopup_data();
    void mouseButtonEventFilter_hidesPopup();
    void mouseButtonEventFilter_keepsPopupThatStaysOpen();
};

void tst_HRManagerEvents::eventFilter_showsOnToolTip()
{
    ManagerFixture f({ { applicationFilterKey, true } });
    QLabel pen;
    pen.setObjectName("pen");
    QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), QPoint(30, 30));
    QVERIFY(QCoreApplication::sendEvent(&pen, &event));
    QVERIFY(f.popup()->isVisible());
    QCOMPARE(f.popup()->referenceWidget(), &pen);
    QCOMPARE(f.popup()->pos(), QPoint(65, 60));
}

void tst_HRManagerEvents::eventFilter_hidesOnDeactivation()
{
    ManagerFixture f({ { applicationFilterKey, true } });
    QEvent before(QEvent::ApplicationDeactivate);
    QCoreApplication::sendEvent(qApp, &before);
    f.show("pen");
    QEvent event(QEvent::ApplicationDeactivate);
    QCoreApplication::sendEvent(qApp, &event);
    QVERIFY(!f.popup()->isVisible());
}

void tst_HRManagerEvents::eventFilter_isNotInstalledByDefault()
{
    ManagerFixture f;
    QLabel pen;
    pen.setObjectName("pen");
    QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), QPoint(30, 30));
    QCoreApplication::sendEvent(&pen, &event);
    QVERIFY(!f.popup());
}

void tst_HRManagerEvents::mouseButtonEventFilter_hidesPopup_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("hides");
    QTest::newRow("press") << int(QEvent::MouseButtonPress) << true;
    QTest::newRow("release") << int(QEvent::MouseButtonRelease) << true;
    QTest::newRow("double click") << int(QEvent::MouseButtonDblClick) << false;
    QTest::newRow("move") << int(QEvent::MouseMove) << false;
}

void tst_HRManagerEvents::mouseButtonEventFilter_hidesPopup()
{
    QFETCH(int, type);
    QFETCH(bool, hides);
    ManagerFixture f({ { applicationFilterKey, true } });
    QWidget beside;
    f.show("pen");

    QObject object;
    sendMouse(&object, QEvent::Type(type), farAway);
    QVERIFY(f.popup()->isVisible());
    sendMouse(f.popup(), QEvent::Type(type), farAway);
    QVERIFY(f.popup()->isVisible());
    sendMouse(f.popup()->findChild<QWidget *>(), QEvent::Type(type), farAway);
    QVERIFY(f.popup()->isVisible());

    sendMouse(&beside, QEvent::Type(type), farAway);
    QCOMPARE(f.popup()->isVisible(), !hides);
}

void tst_HRManagerEvents::mouseButtonEventFilter_keepsPopupThatStaysOpen()
{
    ManagerFixture f;
    QWidget beside;
    QMouseEvent event(
        QEvent::MouseButtonPress, QPointF(1, 1), farAway, Qt::LeftButton, Qt::LeftButton, {});
    QVERIFY(!f.manager().mouseButtonEventFilter(&beside, &event));
    f.show("pen");
    f.popup()->view()->setStayOpen(true);
    QVERIFY(!f.manager().mouseButtonEventFilter(&beside, &event));
    QVERIFY(f.popup()->isVisible());
    f.popup()->view()->setStayOpen(false);
    QVERIFY(!f.manager().mouseButtonEventFilter(nullptr, &event));
    QVERIFY(f.popup()->isVisible());
    QVERIFY(!f.manager().mouseButtonEventFilter(&beside, &event));
    QVERIFY(!f.popup()->isVisible());
}

QTEST_MAIN(tst_HRManagerEvents)
#include "tst_HRManagerEvents.moc"
