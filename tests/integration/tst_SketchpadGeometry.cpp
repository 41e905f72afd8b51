// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "drawing/Geometry.h"

#include <QtMath>
#include <QtTest>

using namespace Sketchpad;

Q_DECLARE_METATYPE(Sketchpad::Alignment)

class tst_SketchpadGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void alignmentOffsets_meetAllRectangles_data();
    void alignmentOffsets_meetAllRectangles();
    void rectanglePath_obeysModifiers_data();
    void rectanglePath_obeysModifiers();
    void linePath_obeysModifiers_data();
    void linePath_obeysModifiers();
    void steadied_takesTheTremble_andKeepsTheStroke();
    void steadied_givesTheSame_howeverFastTheHandWas();
    void steadied_leavesSinglePointsAlone();
    void smoothedPath_keepsBothEnds();
    void smoothedPath_joinsClosePoints();
    void smoothedPath_isEmpty_withoutPoints();
};

void tst_SketchpadGeometry::alignmentOffsets_meetAllRectangles_data()
{
    QTest::addColumn<Alignment>("alignment");
    QTest::addColumn<QVector<QPointF>>("offsets");
    QTest::newRow("left") << Alignment::Left << QVector<QPointF>{ { 0, 0 }, { -20, 0 } };
    QTest::newRow("center") << Alignment::Center << QVector<QPointF>{ { 25, 0 }, { -10, 0 } };
    QTest::newRow("right") << Alignment::Right << QVector<QPointF>{ { 50, 0 }, { 0, 0 } };
    QTest::newRow("top") << Alignment::Top << QVector<QPointF>{ { 0, -40 }, { 0, 0 } };
    QTest::newRow("middle") << Alignment::Middle << QVector<QPointF>{ { 0, -20 }, { 0, 0 } };
    QTest::newRow("bottom") << Alignment::Bottom << QVector<QPointF>{ { 0, 0 }, { 0, 0 } };
}

void tst_SketchpadGeometry::alignmentOffsets_meetAllRectangles()
{
    QFETCH(Alignment, alignment);
    const QVector<QRectF> rects{ { 0, 40, 20, 40 }, { 20, 0, 50, 80 } };
    QTEST(alignmentOffsets(rects, alignment), "offsets");
}

void tst_SketchpadGeometry::rectanglePath_obeysModifiers_data()
{
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QRectF>("rect");
    const Qt::KeyboardModifiers none = Qt::NoModifier;
    const Qt::KeyboardModifiers shift = Qt::ShiftModifier;
    const Qt::KeyboardModifiers alt = Qt::AltModifier;
    QTest::newRow("down right") << QPointF(130, 120) << none << QRectF(100, 100, 30, 20);
    QTest::newRow("up left") << QPointF(70, 80) << none << QRectF(70, 80, 30, 20);
    QTest::newRow("square") << QPointF(130, 120) << shift << QRectF(100, 100, 30, 30);
    QTest::newRow("square up left") << QPointF(90, 60) << shift << QRectF(60, 60, 40, 40);
    QTest::newRow("from center") << QPointF(130, 120) << alt << QRectF(70, 80, 60, 40);
    QTest::newRow("square from center")
        << QPointF(130, 120) << (shift | alt) << QRectF(70, 70, 60, 60);
}

void tst_SketchpadGeometry::rectanglePath_obeysModifiers()
{
    QFETCH(QPointF, to);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QTEST(rectanglePath({ 100, 100 }, to, modifiers).boundingRect(), "rect");
    QTEST(ellipsePath({ 100, 100 }, to, modifiers).boundingRect(), "rect");
}

void tst_SketchpadGeometry::linePath_obeysModifiers_data()
{
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QRectF>("bounds");
    const Qt::KeyboardModifiers none = Qt::NoModifier;
    const Qt::KeyboardModifiers shift = Qt::ShiftModifier;
    const Qt::KeyboardModifiers alt = Qt::AltModifier;
    QTest::newRow("free") << QPointF(30, 40) << none << QRectF(0, 0, 30, 40);
    QTest::newRow("level") << QPointF(30, 4) << shift << QRectF(0, 0, 30, 0);
    QTest::newRow("diagonal") << QPointF(30, 28) << shift << QRectF(0, 0, 29, 29);
    QTest::newRow("from middle") << QPointF(30, 40) << alt << QRectF(-30, -40, 60, 80);
}

void tst_SketchpadGeometry::linePath_obeysModifiers()
{
    QFETCH(QPointF, to);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QRectF, bounds);
    const QRectF line = linePath({ 0, 0 }, to, modifiers).boundingRect();
    // A turned line keeps its length, which is no whole number.
    QVERIFY2(qAbs(line.width() - bounds.width()) < 0.5, qPrintable(QString::number(line.width())));
    QVERIFY2(
        qAbs(line.height() - bounds.height()) < 0.5, qPrintable(QString::number(line.height())));
    QVERIFY((line.topLeft() - bounds.topLeft()).manhattanLength() < 0.5);
}

void tst_SketchpadGeometry::steadied_takesTheTremble_andKeepsTheStroke()
{
    QVector<QPointF> stroke;
    for (int x = 0; x <= 200; ++x)
        stroke.append({ double(x), 2 * qSin(x / 1.3) + 40 * qSin(x / 30.0) });
    const QVector<QPointF> steady = steadied(stroke, 3);
    QCOMPARE(steady.first(), stroke.first());
    QCOMPARE(steady.last(), stroke.last());
    for (int i = 3; i + 3 < steady.size(); ++i)
        QVERIFY(qAbs(steady[i].y() - 40 * qSin(steady[i].x() / 30.0)) < 2.5);
    for (int i = 4; i + 3 < steady.size(); ++i)
        QVERIFY(QLineF(steady[i - 1], steady[i]).angleTo(QLineF(steady[i], steady[i + 1])) < 20
            || QLineF(steady[i - 1], steady[i]).angleTo(QLineF(steady[i], steady[i + 1])) > 340);
}

void tst_SketchpadGeometry::steadied_givesTheSame_howeverFastTheHandWas()
{
    QVector<QPointF> slow;
    for (int x = 0; x <= 120; ++x)
        slow.append({ double(x), 0 });
    QCOMPARE(steadied(slow, 3).size(), steadied({ { 0, 0 }, { 120, 0 } }, 3).size());
}

void tst_SketchpadGeometry::steadied_leavesSinglePointsAlone()
{
    QVERIFY(steadied({}, 3).isEmpty());
    QCOMPARE(steadied({ { 5, 6 } }, 3), QVector<QPointF>({ { 5, 6 } }));
    QCOMPARE(steadied({ { 5, 6 }, { 5, 6 } }, 3).size(), 2);
}

void tst_SketchpadGeometry::smoothedPath_keepsBothEnds()
{
    const QPainterPath path = smoothedPath({ { 0, 0 }, { 10, 20 }, { 20, 0 }, { 30, 20 } }, 1);
    QCOMPARE(QPointF(path.elementAt(0)), QPointF(0, 0));
    QCOMPARE(path.currentPosition(), QPointF(30, 20));
    QVERIFY(path.elementCount() > 4);
}

void tst_SketchpadGeometry::smoothedPath_joinsClosePoints()
{
    const QPainterPath path = smoothedPath({ { 0, 0 }, { 10, 0 }, { 11, 1 }, { 20, 0 } }, 4);
    QCOMPARE(path.boundingRect(), QRectF(0, 0, 20, 0));
}

void tst_SketchpadGeometry::smoothedPath_isEmpty_withoutPoints()
{
    QVERIFY(smoothedPath({}, 4).isEmpty());
}

QTEST_APPLESS_MAIN(tst_SketchpadGeometry)
#include "tst_SketchpadGeometry.moc"
