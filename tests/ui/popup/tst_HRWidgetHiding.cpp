// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/PopupFixture.h"

using namespace Hintreels;

class tst_HRWidgetHiding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showAnimated_fadesIn();
    void showAnimated_startsAtATenth();
    void hideAnimated_hidesAtOnce_withoutDuration();
    void hideAnimated_fadesOut();
    void hideAnimated_doesNothing_duringFade();
    void showWithContent_cancelsFadeOut_data();
    void showWithContent_cancelsFadeOut();
    void cancelHiding_leavesFadeIn();
    void fadeIn_startsTimer_whenTimeOutWasLost();
    void hide_stopsAnimationAndTimer();
    void timer_runs_whilePointerIsAway_data();
    void timer_runs_whilePointerIsAway();
    void timer_stops_whenPointerIsOverReference();
    void timer_doesNotRun_data();
    void timer_doesNotRun();
    void timer_followsStayOpen();
    void timer_hidesPopup();
    void isSafe_countsMargin_data();
    void isSafe_countsMargin();
    void isSafe_isFalse_withoutReference();
};

void tst_HRWidgetHiding::showAnimated_fadesIn()
{
    PopupFixture f({ { showAnimationDurationKey, shortTime } });
    f.show();
    QVERIFY(f.popup->isVisible());
    QVERIFY(f.popup->windowOpacity() < 0.5);
    QCOMPARE(f.popup->size(), f.around(200, 80));
    QTRY_COMPARE(f.popup->windowOpacity(), 1.0);
    QVERIFY(f.popup->isVisible());
}

void tst_HRWidgetHiding::showAnimated_startsAtATenth()
{
    PopupFixture f({ { showAnimationDurationKey, longTime } });
    f.show();
    QCOMPARE(f.animation()->startValue().toReal(), 0.1);
    QCOMPARE(f.animation()->endValue().toReal(), 1.0);
}

void tst_HRWidgetHiding::hideAnimated_hidesAtOnce_withoutDuration()
{
    PopupFixture f;
    f.show();
    f.root()->setState("open");
    f.popup->hideAnimated();
    QVERIFY(!f.popup->isVisible());
    QCOMPARE(f.root()->state(), QString());
}

void tst_HRWidgetHiding::hideAnimated_fadesOut()
{
    PopupFixture f(
        { { hideAnimationDurationKey, shortTime }, { showAnimationDurationKey, shortTime } });
    f.show();
    QTRY_COMPARE(f.popup->windowOpacity(), 1.0);
    f.root()->setState("open");
    f.popup->hideAnimated();
    QVERIFY(f.popup->isVisible());
    QVERIFY(!f.timer()->isActive());
    QTRY_VERIFY(!f.popup->isVisible());
    QCOMPARE(f.root()->state(), QString());

    // The end of the next fade-in does not hide it.
    f.show();
    QTRY_COMPARE(f.animation()->state(), QAbstractAnimation::Stopped);
    QCOMPARE(f.popup->windowOpacity(), 1.0);
    QVERIFY(f.popup->isVisible());
}

void tst_HRWidgetHiding::hideAnimated_doesNothing_duringFade()
{
    PopupFixture f({ { showAnimationDurationKey, longTime } });
    f.show();
    f.popup->hideAnimated();
    QVERIFY(f.popup->isVisible());
    QCOMPARE(f.animation()->state(), QAbstractAnimation::Running);
}

void tst_HRWidgetHiding::showWithContent_cancelsFadeOut_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("same hint") << "pen";
    QTest::newRow("another hint") << "ink";
}

void tst_HRWidgetHiding::showWithContent_cancelsFadeOut()
{
    QFETCH(QString, key);
    PopupFixture f({ { hideAnimationDurationKey, longTime } });
    f.show();
    f.popup->hideAnimated();
    f.animation()->setCurrentTime(longTime / 2);
    QVERIFY(f.popup->windowOpacity() < 0.9);

    f.show(key);

    QCOMPARE(f.popup->windowOpacity(), 1.0);
    QVERIFY(f.timer()->isActive());
    QCOMPARE(f.animation()->state(), QAbstractAnimation::Stopped);
    QVERIFY(f.popup->isVisible());
}

void tst_HRWidgetHiding::cancelHiding_leavesFadeIn()
{
    PopupFixture f({ { showAnimationDurationKey, longTime } });
    f.show();
    f.popup->cancelHiding();
    QCOMPARE(f.animation()->state(), QAbstractAnimation::Running);
}

void tst_HRWidgetHiding::fadeIn_startsTimer_whenTimeOutWasLost()
{
    PopupFixture f({ { showAnimationDurationKey, 200 }, { hideDelayKey, shortTime } });
    f.show();
    QTRY_VERIFY(!f.timer()->isActive());
    QVERIFY(f.popup->isVisible());
    QTRY_VERIFY(!f.popup->isVisible());
}

void tst_HRWidgetHiding::hide_stopsAnimationAndTimer()
{
    PopupFixture f({ { showAnimationDurationKey, longTime } });
    f.show();
    QVERIFY(f.timer()->isActive());
    f.popup->hide();
    QCOMPARE(f.animation()->state(), QAbstractAnimation::Stopped);
    QVERIFY(!f.timer()->isActive());
}

void tst_HRWidgetHiding::timer_runs_whilePointerIsAway_data()
{
    QTest::addColumn<QPoint>("pointer");
    QTest::addColumn<bool>("runs");
    QTest::newRow("inside") << showPosition + QPoint(10, 10) << false;
    QTest::newRow("in the margin") << showPosition - QPoint(10, 10) << false;
    QTest::newRow("away") << farAway << true;
}

void tst_HRWidgetHiding::timer_runs_whilePointerIsAway()
{
    QFETCH(QPoint, pointer);
    QFETCH(bool, runs);
    PopupFixture f;
    QCursor::setPos(pointer);
    f.show();
    QCOMPARE(f.timer()->isActive(), runs);

    // The other way round, and back again.
    f.popup->checkMousePosition(runs ? showPosition : farAway);
    QCOMPARE(f.timer()->isActive(), !runs);
    f.popup->checkMousePosition(pointer);
    QCOMPARE(f.timer()->isActive(), runs);
    f.popup->checkMousePosition(pointer);
    QCOMPARE(f.timer()->isActive(), runs);
}

void tst_HRWidgetHiding::timer_stops_whenPointerIsOverReference()
{
    PopupFixture f;
    f.reference.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.reference));
    f.show();
    QVERIFY(f.timer()->isActive());
    const QPoint over = f.reference.mapToGlobal(f.reference.rect().center());
    QVERIFY(f.popup->isSafe(over));
    // No event tells of this move: the popup looks for itself.
    QCursor::setPos(over);
    QTRY_VERIFY(!f.timer()->isActive());
}

void tst_HRWidgetHiding::timer_doesNotRun_data()
{
    QTest::addColumn<QVariant>("delay");
    QTest::addColumn<bool>("stayOpen");
    QTest::newRow("stays open") << QVariant(1000) << true;
    QTest::newRow("no delay") << QVariant(0) << false;
    QTest::newRow("negative delay") << QVariant(-1.5) << false;
    QTest::newRow("not a number") << QVariant(qQNaN()) << false;
}

void tst_HRWidgetHiding::timer_doesNotRun()
{
    QFETCH(QVariant, delay);
    QFETCH(bool, stayOpen);
    PopupFixture f;
    f.show();
    QVERIFY(f.timer()->isActive());
    f.host->context().set(hideDelayKey, delay);
    f.popup->view()->setStayOpen(stayOpen);
    f.popup->setTimer();
    QVERIFY(!f.timer()->isActive());
}

void tst_HRWidgetHiding::timer_followsStayOpen()
{
    PopupFixture f;
    f.show();
    QVERIFY(f.timer()->isActive());
    f.popup->view()->setStayOpen(true);
    QVERIFY(!f.timer()->isActive());
    f.popup->view()->setStayOpen(false);
    QVERIFY(f.timer()->isActive());

    f.popup->hide();
    f.popup->view()->setStayOpen(false);
    QVERIFY(!f.timer()->isActive());
}

void tst_HRWidgetHiding::timer_hidesPopup()
{
    PopupFixture f({ { hideDelayKey, 80.9 } });
    f.show();
    QCOMPARE(f.timer()->interval(), 80);
    QTRY_VERIFY(!f.popup->isVisible());
}

void tst_HRWidgetHiding::isSafe_countsMargin_data()
{
    QTest::addColumn<QPoint>("offset");
    QTest::addColumn<bool>("safe");
    QTest::newRow("20 outside") << QPoint(-20, -20) << true;
    QTest::newRow("21 left") << QPoint(-21, 0) << false;
    QTest::newRow("21 above") << QPoint(0, -21) << false;
}

void tst_HRWidgetHiding::isSafe_countsMargin()
{
    QFETCH(QPoint, offset);
    PopupFixture f;
    f.show();
    QTEST(f.popup->isSafe(f.popup->mapToGlobal(offset)), "safe");
}

void tst_HRWidgetHiding::isSafe_isFalse_withoutReference()
{
    const HRWidget popup(nullptr, nullptr, nullptr);
    // Neither there is a widget here.
    QVERIFY(!QApplication::widgetAt(farAway));
    QVERIFY(!popup.isSafe(farAway));
}

QTEST_MAIN(tst_HRWidgetHiding)
#include "tst_HRWidgetHiding.moc"
