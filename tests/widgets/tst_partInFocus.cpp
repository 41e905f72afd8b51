// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/PartsWindow.h"
#include "widgets/parts/partAt_p.h"
#include "widgets/parts/partPlace_p.h"

#include <QGraphicsItem>
#include <QtTest>

using namespace Hintreels;

using Focus = QWidget *(*)(PartsWindow &window);

Q_DECLARE_METATYPE(Focus)

class tst_partInFocus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void part_isTheCurrentOne_data();
    void part_isTheCurrentOne();
    void part_isTheWidget_withoutACurrentOne();
    void cell_outOfSight_leavesTheView();
};

void tst_partInFocus::part_isTheCurrentOne_data()
{
    QTest::addColumn<Focus>("focus");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("isInside");

    const auto row = [](const char *name, Focus focus, const char *key, bool isInside) {
        QTest::newRow(name) << focus << key << isInside;
    };
    row(
        "widget", [](PartsWindow &w) -> QWidget * { return w.ui.strikeout; }, "strikeout", false);
    row(
        "entry of a menu",
        [](PartsWindow &w) -> QWidget * {
            w.ui.menuFile->popup(w.mapToGlobal(QPoint(20, 20)));
            w.ui.menuFile->setActiveAction(w.ui.fileQuit);
            return w.ui.menuFile;
        },
        "fileQuit", true);
    row(
        "entry of a menu bar",
        [](PartsWindow &w) -> QWidget * {
            w.ui.menubar->setActiveAction(w.ui.menuFile->menuAction());
            return w.ui.menubar;
        },
        "menuFile", true);
    row(
        "tab",
        [](PartsWindow &w) -> QWidget * {
            w.ui.tabs->setCurrentIndex(1);
            return w.ui.tabs->tabBar();
        },
        "colorTab", true);
    row(
        "cell",
        [](PartsWindow &w) -> QWidget * {
            w.ui.people->setCurrentCell(1, 1);
            return w.ui.people;
        },
        "people/Age", true);
    row(
        "section of a header",
        [](PartsWindow &w) -> QWidget * {
            w.ui.people->setCurrentCell(0, 1);
            return w.ui.people->horizontalHeader();
        },
        "people/Age", true);
    row(
        "section beside the rows",
        [](PartsWindow &w) -> QWidget * {
            w.ui.people->setCurrentCell(1, 0);
            return w.ui.people->verticalHeader();
        },
        "people/row2", true);
    row(
        "item of a list",
        [](PartsWindow &w) -> QWidget * {
            w.ui.categories->setCurrentRow(1);
            return w.ui.categories;
        },
        "categories/Colors", true);
    row(
        "editor of a box", [](PartsWindow &w) -> QWidget * { return w.ui.family->lineEdit(); },
        "family", true);
    row(
        "item of a scene",
        [](PartsWindow &w) -> QWidget * {
            QGraphicsItem *item = w.scene.items().first();
            item->setFlag(QGraphicsItem::ItemIsFocusable);
            item->setFocus();
            return w.ui.canvas;
        },
        "shape", true);
}

void tst_partInFocus::part_isTheCurrentOne()
{
    QFETCH(Focus, focus);
    QFETCH(QString, key);
    QFETCH(bool, isInside);
    PartsWindow window;
    window.show();
    QWidget *focused = focus(window);

    const HRPart part = partInFocus(focused);

    QVERIFY2(keysOf(part).contains(key), qPrintable(keysOf(part).join(' ')));
    QCOMPARE(part.widget.data(), focused);
    QCOMPARE(!part.area.isNull(), isInside);
    const QRect whole(focused->mapToGlobal(QPoint(0, 0)), focused->size());
    QVERIFY(part.area.isNull() || whole.intersects(part.area));
}

void tst_partInFocus::part_isTheWidget_withoutACurrentOne()
{
    PartsWindow window;
    for (QWidget *widget : std::initializer_list<QWidget *>{
             window.ui.people, window.ui.categories, window.ui.canvas, window.ui.menuFile }) {
        const HRPart part = partInFocus(widget);
        QVERIFY(part.area.isNull());
        QVERIFY(keysOf(part).contains(widget->objectName()));
    }
}

void tst_partInFocus::cell_outOfSight_leavesTheView()
{
    PartsWindow window;
    window.show();
    window.ui.people->setRowCount(200);
    window.ui.people->setCurrentCell(199, 1);
    window.ui.people->scrollToTop();
    const HRPart part = partInFocus(window.ui.people);
    QVERIFY(keysOf(part).contains("people/Age"));
    const QWidget *viewport = window.ui.people->viewport();
    QCOMPARE(part.area, QRect(viewport->mapToGlobal(QPoint(0, 0)), viewport->size()));
}

QTEST_MAIN(tst_partInFocus)
#include "tst_partInFocus.moc"
