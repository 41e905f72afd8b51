// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/popup/HRBesidePlacement_p.h"

#include <QMenu>
#include <QToolBar>
#include <QtTest>

using namespace Hintreels;

namespace {

constexpr QSize size(100, 60);
constexpr QSize offset(35, 30);
constexpr QPoint nowhere(700, 500);

} // namespace

/// What a placement takes from the widgets on the screen; the rules are those of popupPlacement.
class tst_HRBesidePlacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void topLeftFor_standsBesideVisibleAreaOfWidget();
    void topLeftFor_standsBesidePart();
    void topLeftFor_standsBesidePointer_withoutVisibleWidget();
    void topLeftFor_keepsOpenMenusClear();
    void topLeftFor_staysOnItsSide_untilAnotherHintStarts();
    void topLeftFor_followsDirectionOfWidget();
    void topLeftFor_leavesAColumnOfToolsClear();
    void isOverPart_andLeadsTo_knowTheWay();
    void everything_survives_theWidget();

private:
    QRect areaFor(const QSize &popup) { return { placement.topLeftFor(popup, offset), popup }; }

    HRBesidePlacement placement;
    std::unique_ptr<QWidget> window;
    QWidget *child = nullptr;
};

void tst_HRBesidePlacement::init()
{
    window = std::make_unique<QWidget>(nullptr, Qt::FramelessWindowHint);
    window->setGeometry(100, 100, 200, 100);
    child = new QWidget(window.get());
    child->setGeometry(-50, 20, 100, 30);
    window->show();
    placement = HRBesidePlacement();
}

void tst_HRBesidePlacement::topLeftFor_standsBesideVisibleAreaOfWidget()
{
    placement.start(child, QRect(), nowhere);
    QCOMPARE(areaFor(size).topLeft(), QPoint(100, 154));
}

void tst_HRBesidePlacement::topLeftFor_standsBesidePart()
{
    placement.start(child, QRect(110, 125, 10, 10), nowhere);
    QCOMPARE(areaFor(size).topLeft(), QPoint(110, 139));
}

void tst_HRBesidePlacement::topLeftFor_standsBesidePointer_withoutVisibleWidget()
{
    child->hide();
    placement.start(child, QRect(), QPoint(200, 200));
    QCOMPARE(areaFor(size).topLeft(), QPoint(235, 230));
    placement.start(nullptr, QRect(), QPoint(300, 200));
    QCOMPARE(areaFor(size).topLeft(), QPoint(335, 230));
}

void tst_HRBesidePlacement::topLeftFor_keepsOpenMenusClear()
{
    QMenu menu;
    menu.addAction("one");
    QAction *second = menu.addAction("two");
    menu.addAction("three");
    menu.popup(QPoint(200, 200));
    const QRect entry = menu.actionGeometry(second).translated(menu.pos());
    placement.start(&menu, entry, entry.center());
    QVERIFY(!areaFor(size).intersects(menu.frameGeometry()));
    QCOMPARE(areaFor(size).top(), entry.top());
}

void tst_HRBesidePlacement::topLeftFor_staysOnItsSide_untilAnotherHintStarts()
{
    const int bottom = QGuiApplication::primaryScreen()->availableGeometry().bottom();
    const QRect part(110, bottom - 199, 10, 10);
    placement.start(child, part, nowhere);
    const QSize high(100, 300);
    QCOMPARE(areaFor(high).bottom(), part.top() - 5);
    QCOMPARE(areaFor(size).bottom(), part.top() - 5);
    placement.start(child, part, nowhere);
    QCOMPARE(areaFor(size).top(), part.bottom() + 5);
}

void tst_HRBesidePlacement::topLeftFor_followsDirectionOfWidget()
{
    child->setLayoutDirection(Qt::RightToLeft);
    placement.start(child, QRect(250, 125, 50, 10), nowhere);
    QCOMPARE(areaFor(size).right(), 299);
}

void tst_HRBesidePlacement::topLeftFor_leavesAColumnOfToolsClear()
{
    QToolBar tools;
    tools.setWindowFlag(Qt::FramelessWindowHint);
    tools.setOrientation(Qt::Vertical);
    QWidget *tool = tools.widgetForAction(tools.addAction("one"));
    tools.addAction("two");
    tools.move(100, 100);
    tools.show();
    const QRect area(tool->mapToGlobal(QPoint()), tool->size());
    placement.start(tool, QRect(), area.center());
    const QPoint beside = areaFor(size).topLeft();
    QVERIFY(beside.x() > area.right());
    QCOMPARE(beside.y(), area.top());

    tools.setOrientation(Qt::Horizontal);
    placement.start(tool, QRect(), area.center());
    QVERIFY(areaFor(size).top() > area.bottom());
}

void tst_HRBesidePlacement::isOverPart_andLeadsTo_knowTheWay()
{
    placement.start(child, QRect(110, 125, 10, 10), nowhere);
    QVERIFY(placement.isOverPart(QPoint(110, 134)));
    QVERIFY(!placement.isOverPart(QPoint(120, 134)));
    const QRect popup(310, 325, 100, 60);
    QVERIFY(placement.leadsTo(popup, QPoint(210, 225)));
    QVERIFY(!placement.leadsTo(popup, QPoint(150, 325)));
    placement.start(nullptr, QRect(), nowhere);
    QVERIFY(!placement.leadsTo(popup, QPoint(210, 225)));
}

void tst_HRBesidePlacement::everything_survives_theWidget()
{
    placement.start(child, QRect(), nowhere);
    window.reset();
    QCOMPARE(areaFor(size).topLeft(), QPoint(100, 154));
    QVERIFY(placement.screen().contains(nowhere));
}

QTEST_MAIN(tst_HRBesidePlacement)
#include "tst_HRBesidePlacement.moc"
