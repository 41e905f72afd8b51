// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "recorder/ClipMotion.h"

#include <QtTest>

using namespace Sketchpad;

class tst_ClipMotion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eased_startsAndStopsGently();
    void curveThrough_passesEveryPoint();
    void curveThrough_staysOnAStraightLine();
    void curveThrough_mayStandStill();
    void tremor_swingsToBothSides();
    void handTime_growsWithTheWay();
};

void tst_ClipMotion::eased_startsAndStopsGently()
{
    QCOMPARE(eased(0), 0.0);
    QCOMPARE(eased(0.5), 0.5);
    QCOMPARE(eased(1), 1.0);
    QVERIFY(eased(0.1) < 0.02);
    QVERIFY(eased(0.9) > 0.98);
    for (double time = 0; time < 1; time += 0.01)
        QVERIFY(eased(time + 0.01) > eased(time));
}

void tst_ClipMotion::curveThrough_passesEveryPoint()
{
    const QVector<QPointF> points = { { 0, 0 }, { 50, 80 }, { 120, -30 }, { 90, 10 } };
    const QPainterPath path = curveThrough(points);
    QVector<QPointF> ends;
    for (int i = 0; i < path.elementCount(); i += 3)
        ends.append(path.elementAt(i));
    QCOMPARE(ends, points);
}

void tst_ClipMotion::curveThrough_staysOnAStraightLine()
{
    const QPainterPath path = curveThrough({ { 0, 0 }, { 10, 10 }, { 40, 40 } });
    for (double share = 0; share <= 1; share += 0.05) {
        const QPointF point = path.pointAtPercent(share);
        QVERIFY(qAbs(point.x() - point.y()) < 1e-9);
    }
}

void tst_ClipMotion::curveThrough_mayStandStill()
{
    const QPainterPath path = curveThrough({ { 7, 8 }, { 7, 8 } });
    QCOMPARE(path.length(), 0.0);
    QCOMPARE(path.pointAtPercent(0.5), QPointF(7, 8));
}

void tst_ClipMotion::tremor_swingsToBothSides()
{
    QRectF swung;
    for (double way = 0; way < 100; way += 0.5)
        swung |= QRectF(tremor(way), QSizeF(1e-9, 1e-9));
    QVERIFY(
        swung.left() < -0.7 && swung.right() > 0.7 && swung.top() < -0.7 && swung.bottom() > 0.7);
    QVERIFY(QRectF(-1, -1, 2, 2).contains(swung));
}

void tst_ClipMotion::handTime_growsWithTheWay()
{
    QVERIFY(handTime(0) > 0);
    QVERIFY(handTime(400) > handTime(100));
}

QTEST_APPLESS_MAIN(tst_ClipMotion)

#include "tst_ClipMotion.moc"
