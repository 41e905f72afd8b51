// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/PartsWindow.h"
#include "widgets/parts/partAt_p.h"
#include "widgets/parts/partPlace_p.h"

#include <QtTest>

using namespace Hintreels;

class tst_partAt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void part_isFound_forEachKind_data();
    void part_isFound_forEachKind();
    void title_isPartOfItsGroupBox();
    void namelessWidget_belongsToWhatItLiesIn();
    void namelessWidget_belongsToNoPageOrWindow();
    void namelessPart_isNoPartOfItsMenu();
    void places_areTheSame_inAMenuAndAFloatingDock();
    void dock_isNamed_underItsTab();
};

void tst_partAt::part_isFound_forEachKind_data()
{
    QTest::addColumn<int>("row");
    for (int i = 0; i < partCases().size(); ++i)
        QTest::newRow(partCases()[i].name) << i;
}

void tst_partAt::part_isFound_forEachKind()
{
    QFETCH(int, row);
    PartsWindow window;
    const Spot spot = partCases()[row].spot(window);

    const HRPart part = partAt(spot.innermost(), spot.global());

    QCOMPARE(keysOf(part), partCases()[row].keys);
    QCOMPARE(part.area, spot.globalArea());
    QCOMPARE(part.widget.data(), spot.innermost());
}

void tst_partAt::title_isPartOfItsGroupBox()
{
    PartsWindow window;
    const QGroupBox *box = window.ui.effects;
    const HRPart part = partAt(window.ui.effects, box->mapToGlobal(QPoint(14, 6)));
    QCOMPARE(keysOf(part), QStringList({ "PartsWindow/effects", "effects" }));
    QVERIFY(part.area.contains(box->mapToGlobal(QPoint(14, 6))));
    QVERIFY(part.area.height() < box->height() / 2);
    QCOMPARE(part.text, QString("Effects"));
    QVERIFY(part.showsText);
}

void tst_partAt::namelessWidget_belongsToWhatItLiesIn()
{
    PartsWindow window;
    QWidget middle(window.ui.swatch);
    QWidget inner(&middle);
    const HRPart part = partAt(&inner, QPoint());
    QCOMPARE(part.key, QString("ink"));
    QCOMPARE(part.widget.data(), &inner);
    QCOMPARE(part.area.size(), window.ui.swatch->size());
}

void tst_partAt::namelessWidget_belongsToNoPageOrWindow()
{
    PartsWindow window;
    for (QWidget *place : { window.ui.colorTab, static_cast<QWidget *>(&window) }) {
        QWidget inner(place);
        const HRPart part = partAt(&inner, QPoint());
        QVERIFY(part.isNameless());
        QVERIFY(part.area.isNull());
    }
}

void tst_partAt::namelessPart_isNoPartOfItsMenu()
{
    PartsWindow window;
    QMenu &menu = *window.ui.menuFile;
    QAction *nameless = menu.addAction("Nameless");
    menu.popup(QPoint(50, 50));
    const QRect area = menu.actionGeometry(nameless);
    QVERIFY(partAt(&menu, menu.mapToGlobal(area.center())).isNameless());
}

void tst_partAt::places_areTheSame_inAMenuAndAFloatingDock()
{
    PartsWindow window;
    const QStringList inDock{ "PartsWindow/layersDock/layers", "layersDock/layers", "layers" };
    QCOMPARE(keysOf(wholePart(window.ui.layers)), inDock);
    window.ui.layersDock->setFloating(true);
    QCOMPARE(keysOf(wholePart(window.ui.layers)), inDock);
    QCOMPARE(keysAround(wholePart(window.ui.layers)),
        QStringList({ "PartsWindow/layersDock", "layersDock", "PartsWindow" }));
    QCOMPARE(keysAround(wholePart(window.ui.menuFile)), QStringList("PartsWindow"));
}

void tst_partAt::dock_isNamed_underItsTab()
{
    PartsWindow window;
    QDockWidget other("Brushes");
    other.setObjectName("brushesDock");
    window.addDockWidget(Qt::RightDockWidgetArea, &other);
    window.tabifyDockWidget(window.ui.layersDock, &other);
    QTabBar *bar = nullptr;
    other.show();
    QTRY_VERIFY(
        (bar = window.findChild<QTabBar *>(QString(), Qt::FindDirectChildrenOnly)) && bar->count());
    const int index = bar->tabText(0) == "Brushes" ? 0 : 1;
    const HRPart part = partAt(bar, bar->mapToGlobal(bar->tabRect(index).center()));
    QCOMPARE(keysOf(part), QStringList({ "PartsWindow/brushesDock", "brushesDock" }));
}

QTEST_MAIN(tst_partAt)
#include "tst_partAt.moc"
