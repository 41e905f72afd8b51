// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/popupPlacement_p.h"

#include <QtTest>

#include <limits>

using namespace Hintreels;

Q_DECLARE_METATYPE(HRPlace)
Q_DECLARE_METATYPE(HRSide)

namespace {

constexpr QRect screen(0, 0, 1280, 800);
constexpr QSize offset(35, 30);
constexpr QSize popup(200, 120);

// The gap, and what a pointer covers from its tip on.
constexpr int gap = 4;
constexpr QSize arrow(16, 20);

HRPlace placeOf(const QRect &part, const QPoint &pointer, const QRect &menus = {})
{
    HRPlace place;
    place.part = part;
    place.menus = menus;
    place.pointer = pointer;
    place.offset = offset;
    place.screen = screen;
    return place;
}

HRPlace placeOf(const QRect &part, const QRect &menus = {})
{
    return placeOf(part, part.topLeft(), menus);
}

HRPlace mirrored(HRPlace place)
{
    place.mirrored = true;
    return place;
}

HRPlace standing(HRSide side, HRPlace place)
{
    place.side = side;
    return place;
}

HRPlace onScreen(const QRect &other, HRPlace place)
{
    place.screen = other;
    return place;
}

HRPlace withOffset(const QSize &other, HRPlace place)
{
    place.offset = other;
    return place;
}

HRPlace inColumn(HRPlace place)
{
    place.inColumn = true;
    return place;
}

} // namespace

class tst_popupPlacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placedBeside_findsRoom_data();
    void placedBeside_findsRoom();
    void placedBeside_keepsPartAndPointerClear_wherePartIs_data();
    void placedBeside_keepsPartAndPointerClear_wherePartIs();
    void placedBeside_neverCoversPointer_onCanvas();
    void isBetween_isTheWayOfAnyPoint_data();
    void isBetween_isTheWayOfAnyPoint();
};

void tst_popupPlacement::placedBeside_findsRoom_data()
{
    QTest::addColumn<HRPlace>("place");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("topLeft");
    QTest::addColumn<HRSide>("side");
    const QRect button(400, 300, 80, 30);
    QTest::newRow("below") << placeOf(button) << popup << QPoint(400, 330 + gap) << HRSide::below;
    QTest::newRow("below a pointer near the lower edge")
        << placeOf(button, QPoint(410, 325)) << popup << QPoint(400, 345 + gap) << HRSide::below;
    QTest::newRow("a pointer elsewhere moves nothing")
        << placeOf(button, QPoint(100, 100)) << popup << QPoint(400, 330 + gap) << HRSide::below;
    QTest::newRow("a pointer in the way") << placeOf(button, QPoint(450, 400)) << popup
                                          << QPoint(400, 300 - gap - 120) << HRSide::above;
    QTest::newRow("from right to left")
        << mirrored(placeOf(button)) << popup << QPoint(280, 330 + gap) << HRSide::below;
    QTest::newRow("a status bar's button")
        << placeOf(QRect(1200, 770, 80, 30), QPoint(1270, 790)) << popup
        << QPoint(1080, 770 - gap - 120) << HRSide::above;
    QTest::newRow("slid to the right")
        << placeOf(QRect(-20, 300, 80, 30)) << popup << QPoint(0, 330 + gap) << HRSide::below;
    QTest::newRow("as high as the screen")
        << placeOf(QRect(100, 0, 300, 800)) << popup << QPoint(400 + gap, 0) << HRSide::right;
    QTest::newRow("as high as the screen, at its right edge")
        << placeOf(QRect(900, 0, 380, 800)) << popup << QPoint(900 - gap - 200, 0) << HRSide::left;
    QTest::newRow("as high as the screen, from right to left")
        << mirrored(placeOf(QRect(500, 0, 300, 800))) << popup << QPoint(500 - gap - 200, 0)
        << HRSide::left;
    QTest::newRow("in a column") << inColumn(placeOf(button)) << popup << QPoint(480 + gap, 300)
                                 << HRSide::right;
    QTest::newRow("in a column, from right to left")
        << inColumn(mirrored(placeOf(button))) << popup << QPoint(200 - gap, 300) << HRSide::left;
    QTest::newRow("in a column at the right edge")
        << inColumn(placeOf(QRect(1200, 300, 80, 30))) << popup << QPoint(1000 - gap, 300)
        << HRSide::left;
    QTest::newRow("stays above") << standing(HRSide::above, placeOf(button)) << popup
                                 << QPoint(400, 300 - gap - 120) << HRSide::above;
    QTest::newRow("stays not where it has no room")
        << standing(HRSide::above, placeOf(QRect(400, 100, 80, 30))) << popup
        << QPoint(400, 130 + gap) << HRSide::below;
    QTest::newRow("another screen")
        << onScreen(QRect(1280, -200, 800, 600), placeOf(QRect(2000, 360, 80, 40))) << popup
        << QPoint(1880, 360 - gap - 120) << HRSide::above;

    const QRect entry(100, 200, 150, 25);
    const QRect menu(98, 100, 154, 300);
    const QRect both(98, 100, 320, 300);
    QTest::newRow("beside the menu")
        << placeOf(entry, menu) << popup << QPoint(252 + gap, 200) << HRSide::right;
    QTest::newRow("beside the menu, from right to left")
        << mirrored(placeOf(entry.translated(500, 0), menu.translated(500, 0))) << popup
        << QPoint(598 - gap - 200, 200) << HRSide::left;
    QTest::newRow("beside a menu at the right edge")
        << placeOf(entry.translated(1000, 0), menu.translated(1000, 0)) << popup
        << QPoint(1098 - gap - 200, 200) << HRSide::left;
    QTest::newRow("beside the last entry at the lower edge")
        << placeOf(QRect(100, 770, 150, 25), QRect(98, 500, 154, 297)) << popup
        << QPoint(252 + gap, 680) << HRSide::right;
    QTest::newRow("beside both menus")
        << placeOf(entry, both) << popup << QPoint(418 + gap, 200) << HRSide::right;
    QTest::newRow("below a menu as wide as the screen")
        << placeOf(entry, QRect(0, 100, 1280, 300)) << popup << QPoint(100, 400 + gap)
        << HRSide::below;
    QTest::newRow("over further entries rather than over the entry")
        << placeOf(entry, screen) << popup << QPoint(250 + gap, 200) << HRSide::right;
    QTest::newRow("not over the open menu of a menu bar")
        << placeOf(QRect(100, 75, 50, 25), menu) << QSize(200, 70) << QPoint(100, 75 - gap - 70)
        << HRSide::above;

    const QRect canvas(10, 10, 1260, 780);
    QTest::newRow("canvas") << placeOf(canvas, QPoint(400, 300)) << popup << QPoint(435, 330)
                            << HRSide::below;
    QTest::newRow("canvas, lower right corner")
        << placeOf(canvas, QPoint(1260, 780)) << popup << QPoint(1080, 630) << HRSide::above;
    QTest::newRow("canvas, from right to left") << mirrored(placeOf(canvas, QPoint(400, 300)))
                                                << popup << QPoint(166, 330) << HRSide::below;
    QTest::newRow("a pointer beside the screen, from right to left")
        << mirrored(placeOf(QRect(), QPoint(1400, 300))) << popup << QPoint(1045, 330)
        << HRSide::below;
    QTest::newRow("canvas, as high as the screen")
        << placeOf(canvas, QPoint(400, 300)) << QSize(200, 790) << QPoint(435, 10) << HRSide::right;
    QTest::newRow("no part") << placeOf(QRect(), QPoint(400, 300)) << popup << QPoint(435, 330)
                             << HRSide::below;
    QTest::newRow("no offset") << withOffset(QSize(0, 0), placeOf(QRect(), QPoint(400, 300)))
                               << popup << QPoint(416, 320) << HRSide::below;
    QTest::newRow("a huge offset, and a pointer nowhere")
        << withOffset(
               QSize(std::numeric_limits<int>::max(), 30), placeOf(QRect(), QPoint(-10000, 90000)))
        << popup << QPoint(1080, 649) << HRSide::above;
    QTest::newRow("too large for any side, most room on the left")
        << placeOf(QRect(), QPoint(1000, 400)) << QSize(970, 790) << QPoint(-5, 10) << HRSide::left;
}

void tst_popupPlacement::placedBeside_findsRoom()
{
    QFETCH(HRPlace, place);
    QFETCH(QSize, size);
    const HRPlaced placed = placedBeside(place, size);
    QTEST(placed.topLeft, "topLeft");
    QTEST(placed.side, "side");
}

void tst_popupPlacement::placedBeside_keepsPartAndPointerClear_wherePartIs_data()
{
    QTest::addColumn<QSize>("part");
    QTest::addColumn<QSize>("popup");
    QTest::newRow("button") << QSize(24, 24) << popup;
    QTest::newRow("tab") << QSize(120, 32) << QSize(450, 480);
    QTest::newRow("row of a list") << QSize(700, 20) << QSize(450, 320);
    QTest::newRow("column") << QSize(60, 700) << QSize(450, 480);
}

void tst_popupPlacement::placedBeside_keepsPartAndPointerClear_wherePartIs()
{
    QFETCH(QSize, part);
    QFETCH(QSize, popup);
    for (int x = 0; x <= screen.width() - part.width(); x += 10) {
        for (int y = 0; y <= screen.height() - part.height(); y += 10) {
            const QRect area(QPoint(x, y), part);
            const QRect placed(placedBeside(placeOf(area, area.center()), popup).topLeft, popup);
            QVERIFY2(screen.contains(placed), qPrintable(QString("%1, %2").arg(x).arg(y)));
            QVERIFY(!placed.intersects(area));
            QVERIFY(!placed.intersects(QRect(area.center(), arrow)));
        }
    }
}

void tst_popupPlacement::placedBeside_neverCoversPointer_onCanvas()
{
    const QSize large(450, 480);
    for (int x = 0; x < screen.width(); x += 5) {
        for (int y = 0; y < screen.height(); y += 5) {
            const QPoint pointer(x, y);
            const QRect placed(placedBeside(placeOf(screen, pointer), large).topLeft, large);
            QVERIFY2(screen.contains(placed), qPrintable(QString("%1, %2").arg(x).arg(y)));
            QVERIFY(!placed.intersects(QRect(pointer, arrow)));
        }
    }
}

void tst_popupPlacement::isBetween_isTheWayOfAnyPoint_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<bool>("between");
    // From (100, 100, 80, 20) to (300, 200, 200, 100).
    QTest::newRow("in the first") << QPoint(100, 119) << true;
    QTest::newRow("in the second") << QPoint(499, 200) << true;
    QTest::newRow("half way") << QPoint(260, 180) << true;
    QTest::newRow("its upper edge") << QPoint(339, 150) << true;
    QTest::newRow("above that edge") << QPoint(340, 148) << false;
    QTest::newRow("its lower edge") << QPoint(200, 209) << true;
    QTest::newRow("below that edge") << QPoint(198, 212) << false;
    QTest::newRow("right of the first") << QPoint(300, 100) << false;
    QTest::newRow("below the first") << QPoint(100, 200) << false;
    QTest::newRow("behind the first") << QPoint(90, 100) << false;
    QTest::newRow("behind the second") << QPoint(510, 310) << false;
}

void tst_popupPlacement::isBetween_isTheWayOfAnyPoint()
{
    QFETCH(QPoint, position);
    const QRect first(100, 100, 80, 20);
    const QRect second(300, 200, 200, 100);
    QTEST(isBetween(first, second, position), "between");
    QTEST(isBetween(second, first, position), "between");
}

QTEST_APPLESS_MAIN(tst_popupPlacement)
#include "tst_popupPlacement.moc"
