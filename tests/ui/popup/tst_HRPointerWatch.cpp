// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRPointerWatch_p.h"

#include <QAbstractEventDispatcher>
#include <QCursor>
#include <QWindow>
#include <QtTest>

using namespace Hintreels;

namespace {

int timersOf(QObject *object)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(object).size();
}

/// Has a watch look now.
void look(HRPointerWatch &watch)
{
    QTimerEvent event(0);
    QCoreApplication::sendEvent(&watch, &event);
}

} // namespace

class tst_HRPointerWatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QCursor::setPos(10, 10); }
    void watch_tellsOnce_whenPointerMoved();
    void watch_isSilent_whilePointerRests();
    void watch_isSilent_whenStopped();
    void watch_hasNoTimerObject();
    void pointer_isNowhere_afterItLeftAWindow();
    void pointer_isTold_whereItIsWatched();
};

void tst_HRPointerWatch::watch_tellsOnce_whenPointerMoved()
{
    QVector<QPoint> moves;
    HRPointerWatch watch([&](const auto &position) { moves.append(*position); });
    watch.start();
    QCursor::setPos(50, 60);
    QTRY_COMPARE(moves, QVector<QPoint>{ QPoint(50, 60) });
    look(watch);
    QCOMPARE(moves.size(), 1);
}

void tst_HRPointerWatch::watch_isSilent_whilePointerRests()
{
    QVector<QPoint> moves;
    HRPointerWatch watch([&](const auto &position) { moves.append(*position); });
    watch.start();
    look(watch);
    look(watch);
    QVERIFY(moves.isEmpty());
    QCOMPARE(timersOf(&watch), 1);
}

void tst_HRPointerWatch::watch_isSilent_whenStopped()
{
    QVector<QPoint> moves;
    HRPointerWatch watch([&](const auto &position) { moves.append(*position); });
    watch.start();
    watch.stop();
    QCOMPARE(timersOf(&watch), 0);

    // What happened while it was stopped stays untold.
    QCursor::setPos(50, 60);
    watch.start();
    look(watch);
    QVERIFY(moves.isEmpty());
}

void tst_HRPointerWatch::watch_hasNoTimerObject()
{
    HRPointerWatch watch([](const auto &) {});
    watch.start();
    QVERIFY(watch.children().isEmpty());
}

// As on Wayland, where the application's events come by.
void tst_HRPointerWatch::pointer_isNowhere_afterItLeftAWindow()
{
    QVector<HRPointerWatch::Position> moves;
    HRPointerWatch watch([&](const auto &position) { moves.append(position); });
    watch.start();
    QWindow window;
    QEvent left(QEvent::Leave);
    QEvent entered(QEvent::Enter);
    QVERIFY(!watch.eventFilter(&window, &left));
    QVERIFY(!watch.position());
    QVERIFY(!watch.eventFilter(&window, &left));
    QVERIFY(!watch.eventFilter(&window, &entered));
    QCOMPARE(watch.position(), HRPointerWatch::Position(QPoint(10, 10)));
    QCOMPARE(moves, QVector<HRPointerWatch::Position>({ std::nullopt, QPoint(10, 10) }));
}

void tst_HRPointerWatch::pointer_isTold_whereItIsWatched()
{
    int moves = 0;
    HRPointerWatch watch([&](const auto &) { ++moves; });
    QWindow window;
    QObject object;
    QEvent left(QEvent::Leave);
    QEvent other(QEvent::MouseMove);
    watch.eventFilter(&window, &left);
    QVERIFY(!watch.position());
    watch.start();
    watch.eventFilter(&object, &left);
    watch.eventFilter(&window, &other);
    QCOMPARE(moves, 0);
}

QTEST_MAIN(tst_HRPointerWatch)
#include "tst_HRPointerWatch.moc"
