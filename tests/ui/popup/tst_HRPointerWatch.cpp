// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRPointerWatch_p.h"

#include <QCursor>
#include <QtTest>

using namespace Hintreels;

namespace {

constexpr int twoLooks = 500; // ms

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
};

void tst_HRPointerWatch::watch_tellsOnce_whenPointerMoved()
{
    QVector<QPoint> moves;
    HRPointerWatch watch([&](const QPoint &position) { moves.append(position); });
    watch.start(QCursor::pos());
    QCursor::setPos(50, 60);
    QTRY_COMPARE(moves, QVector<QPoint>{ QPoint(50, 60) });
    QTest::qWait(twoLooks);
    QCOMPARE(moves.size(), 1);
}

void tst_HRPointerWatch::watch_isSilent_whilePointerRests()
{
    QVector<QPoint> moves;
    HRPointerWatch watch([&](const QPoint &position) { moves.append(position); });
    watch.start(QCursor::pos());
    QTest::qWait(twoLooks);
    QVERIFY(moves.isEmpty());
}

void tst_HRPointerWatch::watch_isSilent_whenStopped()
{
    QVector<QPoint> moves;
    HRPointerWatch watch([&](const QPoint &position) { moves.append(position); });
    watch.start(QCursor::pos());
    watch.stop();
    QCursor::setPos(50, 60);
    QTest::qWait(twoLooks);
    QVERIFY(moves.isEmpty());

    // What happened while it was stopped stays untold.
    watch.start(QCursor::pos());
    QTest::qWait(twoLooks);
    QVERIFY(moves.isEmpty());
}

void tst_HRPointerWatch::watch_hasNoTimerObject()
{
    HRPointerWatch watch([](const QPoint &) {});
    watch.start(QCursor::pos());
    QVERIFY(watch.children().isEmpty());
}

QTEST_MAIN(tst_HRPointerWatch)
#include "tst_HRPointerWatch.moc"
