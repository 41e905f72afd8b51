// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/popupGeometry_p.h"

#include <QWidget>
#include <QtTest>

#include <limits>

using namespace Hintreels;

namespace {

const QRect primary(0, 0, 800, 600);

} // namespace

class tst_popupGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void movedInside_correctsEachEdge_data();
    void movedInside_correctsEachEdge();
    void mostCoveredScreen_choosesByArea_data();
    void mostCoveredScreen_choosesByArea();
    void withinReach_boundsEachCoordinate();
    void isNear_includesTheMarginsEdge_data();
    void isNear_includesTheMarginsEdge();
    void isNear_isEverywhere_whenMarginIsHuge();
    void fitContent_fitsIntoScreen_data();
    void fitContent_fitsIntoScreen();
    void onRoomierSides_choosesEachSideByItself_data();
    void onRoomierSides_choosesEachSideByItself();
    void openedWhereRoomier_endsOnTheOtherSides_data();
    void openedWhereRoomier_endsOnTheOtherSides();
};

void tst_popupGeometry::movedInside_correctsEachEdge_data()
{
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<QRect>("geometry");
    QTest::addColumn<QRect>("inside");
    QTest::newRow("inside stays") << primary << QRect(100, 100, 200, 80)
                                  << QRect(100, 100, 200, 80);
    QTest::newRow("filling the screen stays") << primary << primary << primary;
    QTest::newRow("left") << primary << QRect(-50, 0, 200, 80) << QRect(0, 0, 200, 80);
    QTest::newRow("top") << primary << QRect(0, -50, 200, 80) << QRect(0, 0, 200, 80);
    QTest::newRow("right") << primary << QRect(700, 0, 200, 80) << QRect(600, 0, 200, 80);
    QTest::newRow("bottom") << primary << QRect(0, 590, 200, 80) << QRect(0, 520, 200, 80);
    QTest::newRow("one pixel right") << primary << QRect(601, 0, 200, 80) << QRect(600, 0, 200, 80);
    QTest::newRow("two edges") << primary << QRect(900, -10, 200, 80) << QRect(600, 0, 200, 80);
    QTest::newRow("larger keeps its lower right corner")
        << primary << QRect(10, 10, 1000, 700) << QRect(-200, -100, 1000, 700);
    QTest::newRow("screen on the left")
        << QRect(-1024, 0, 1024, 768) << QRect(-10, 0, 200, 80) << QRect(-200, 0, 200, 80);
    QTest::newRow("screen above") << QRect(0, -768, 1024, 768) << QRect(0, -900, 200, 80)
                                  << QRect(0, -768, 200, 80);
    QTest::newRow("screen on the right")
        << QRect(800, 100, 1024, 768) << QRect(790, 90, 200, 80) << QRect(800, 100, 200, 80);
    QTest::newRow("screen below") << QRect(0, 600, 1024, 768) << QRect(0, 1300, 200, 80)
                                  << QRect(0, 1288, 200, 80);
}

void tst_popupGeometry::movedInside_correctsEachEdge()
{
    QFETCH(QRect, screen);
    QFETCH(QRect, geometry);
    QTEST(movedInside(geometry, screen), "inside");
}

void tst_popupGeometry::mostCoveredScreen_choosesByArea_data()
{
    const QVector<QRect> pair{ primary, QRect(800, 0, 1024, 768) };
    const QVector<QRect> negative{ primary, QRect(-1024, -200, 1024, 768) };
    QTest::addColumn<QVector<QRect>>("screens");
    QTest::addColumn<QRect>("area");
    QTest::addColumn<int>("index");
    QTest::newRow("no screen") << QVector<QRect>() << QRect(0, 0, 10, 10) << -1;
    QTest::newRow("beside all screens") << pair << QRect(-100, 0, 50, 50) << -1;
    QTest::newRow("first") << pair << QRect(10, 10, 50, 50) << 0;
    QTest::newRow("second") << pair << QRect(900, 10, 50, 50) << 1;
    QTest::newRow("mostly first") << pair << QRect(740, 0, 100, 50) << 0;
    QTest::newRow("mostly second") << pair << QRect(760, 0, 100, 50) << 1;
    QTest::newRow("half and half is the first") << pair << QRect(750, 0, 100, 50) << 0;
    QTest::newRow("a point on the edge") << pair << QRect(799, 0, 1, 1) << 0;
    QTest::newRow("a point behind the edge") << pair << QRect(800, 0, 1, 1) << 1;
    QTest::newRow("negative origin") << negative << QRect(-500, -150, 50, 50) << 1;
    QTest::newRow("an empty area") << pair << QRect(10, 10, 0, 0) << -1;
}

void tst_popupGeometry::mostCoveredScreen_choosesByArea()
{
    QFETCH(QVector<QRect>, screens);
    QFETCH(QRect, area);
    QTEST(mostCoveredScreen(area, screens), "index");
}

void tst_popupGeometry::withinReach_boundsEachCoordinate()
{
    const int largest = std::numeric_limits<int>::max();
    const int smallest = std::numeric_limits<int>::min();
    const int reach = QWIDGETSIZE_MAX;
    QCOMPARE(withinReach(QPoint(reach, -reach)), QPoint(reach, -reach));
    QCOMPARE(withinReach(QPoint(-7, reach + 1)), QPoint(-7, reach));
    QCOMPARE(withinReach(QPoint(largest, smallest)), QPoint(reach, -reach));
}

void tst_popupGeometry::isNear_includesTheMarginsEdge_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<bool>("near");
    // Of an area from 100 to 299 and from 100 to 179.
    QTest::newRow("inside") << QPoint(150, 150) << true;
    QTest::newRow("20 left") << QPoint(80, 150) << true;
    QTest::newRow("21 left") << QPoint(79, 150) << false;
    QTest::newRow("20 right") << QPoint(319, 150) << true;
    QTest::newRow("21 right") << QPoint(320, 150) << false;
    QTest::newRow("10 above") << QPoint(150, 90) << true;
    QTest::newRow("11 above") << QPoint(150, 89) << false;
    QTest::newRow("10 below") << QPoint(150, 189) << true;
    QTest::newRow("11 below") << QPoint(150, 190) << false;
}

void tst_popupGeometry::isNear_includesTheMarginsEdge()
{
    QFETCH(QPoint, position);
    QTEST(isNear(QRect(100, 100, 200, 80), QSize(20, 10), position), "near");
}

void tst_popupGeometry::isNear_isEverywhere_whenMarginIsHuge()
{
    const int huge = std::numeric_limits<int>::max();
    const QRect area(100, 100, 200, 80);
    QVERIFY(isNear(area, QSize(huge, huge), QPoint(-5000, 20000)));
    QVERIFY(!isNear(area, QSize(-huge, -huge), QPoint(150, 150)));
}

void tst_popupGeometry::fitContent_fitsIntoScreen_data()
{
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<QSize>("content");
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<int>("titleBar");
    QTest::addColumn<QRect>("geometry");
    QTest::addColumn<bool>("pushed");
    const QSize content(200, 80);
    QTest::newRow("inside") << primary << content << QPoint(100, 100) << 0
                            << QRect(100, 100, 200, 80) << false;
    QTest::newRow("left") << primary << content << QPoint(-50, 100) << 0 << QRect(0, 100, 200, 80)
                          << true;
    QTest::newRow("top") << primary << content << QPoint(100, -50) << 0 << QRect(100, 0, 200, 80)
                         << true;
    QTest::newRow("right") << primary << content << QPoint(700, 100) << 0
                           << QRect(600, 100, 200, 80) << true;
    QTest::newRow("bottom") << primary << content << QPoint(100, 590) << 0
                            << QRect(100, 520, 200, 80) << true;
    QTest::newRow("touching right and bottom")
        << primary << content << QPoint(600, 520) << 0 << QRect(600, 520, 200, 80) << false;
    QTest::newRow("wider than the screen") << primary << QSize(1000, 80) << QPoint(0, 0) << 0
                                           << QRect(QPoint(-200, 0), QPoint(799, 79)) << true;
    QTest::newRow("negative origin")
        << QRect(-1024, -200, 1024, 768) << content << QPoint(-1100, -300) << 0
        << QRect(-1024, -200, 200, 80) << true;
    QTest::newRow("a title bar counts as height")
        << primary << content << QPoint(100, 100) << -20 << QRect(QPoint(100, 80), QPoint(299, 179))
        << false;
}

void tst_popupGeometry::fitContent_fitsIntoScreen()
{
    QFETCH(QRect, screen);
    QFETCH(QSize, content);
    QFETCH(QPoint, position);
    QFETCH(int, titleBar);

    const HRContentFit fit = fitContent(content, position, titleBar, screen);

    QTEST(fit.geometry, "geometry");
    QTEST(fit.pushed, "pushed");
}

void tst_popupGeometry::onRoomierSides_choosesEachSideByItself_data()
{
    QTest::addColumn<QRect>("window");
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QPoint>("topLeft");
    const QRect window(0, 0, 401, 301);
    QTest::newRow("upper left") << window << QPoint(50, 40) << QPoint(85, 70);
    QTest::newRow("upper right") << window << QPoint(350, 40) << QPoint(115, 70);
    QTest::newRow("lower left") << window << QPoint(50, 250) << QPoint(85, 120);
    QTest::newRow("lower right") << window << QPoint(350, 250) << QPoint(115, 120);
    QTest::newRow("middle") << window << QPoint(200, 150) << QPoint(235, 180);
    QTest::newRow("just beyond the middle") << window << QPoint(201, 151) << QPoint(-34, 21);
    QTest::newRow("elsewhere") << window.translated(-1000, 500) << QPoint(-650, 540)
                               << QPoint(-885, 570);
    QTest::newRow("left of the window") << window << QPoint(-10, 40) << QPoint(25, 70);
    QTest::newRow("below the window") << window << QPoint(50, 400) << QPoint(85, 270);
}

void tst_popupGeometry::onRoomierSides_choosesEachSideByItself()
{
    QFETCH(QRect, window);
    QFETCH(QPoint, point);
    QTEST(onRoomierSides(point, QSize(35, 30), QSize(200, 100), window), "topLeft");
}

void tst_popupGeometry::openedWhereRoomier_endsOnTheOtherSides_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QPoint>("topLeft");
    QTest::addColumn<QPoint>("bottomRight");
    const QPoint least = everywhere().topLeft();
    const QPoint most = everywhere().bottomRight();
    QTest::newRow("upper left") << QPoint(50, 40) << QPoint(0, 0) << most;
    QTest::newRow("lower right") << QPoint(350, 250) << least << QPoint(400, 300);
    QTest::newRow("upper right") << QPoint(350, 40) << QPoint(least.x(), 0)
                                 << QPoint(400, most.y());
}

void tst_popupGeometry::openedWhereRoomier_endsOnTheOtherSides()
{
    QFETCH(QPoint, point);
    QFETCH(QPoint, topLeft);
    QFETCH(QPoint, bottomRight);
    QCOMPARE(openedWhereRoomier(QRect(0, 0, 401, 301), point), QRect(topLeft, bottomRight));
}

QTEST_APPLESS_MAIN(tst_popupGeometry)
#include "tst_popupGeometry.moc"
