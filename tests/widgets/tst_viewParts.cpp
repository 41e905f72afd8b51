// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/parts/viewParts_p.h"

#include <QComboBox>
#include <QHeaderView>
#include <QListView>
#include <QRegularExpression>
#include <QStandardItemModel>
#include <QTableView>
#include <QTreeView>

#include <QtTest>

using namespace Hintreels;

namespace {

/// Two columns, of which the first has a text, and two rows, of which the second has one.
struct Model : QStandardItemModel
{
    Model()
        : QStandardItemModel(2, 2)
    {
        setHeaderData(0, Qt::Horizontal, "Name");
        setHeaderData(1, Qt::Vertical, "Guests");
        setItem(0, 0, new QStandardItem("Ada"));
        setItem(0, 1, new QStandardItem("36"));
        setItem(1, 0, new QStandardItem(" "));
    }
};

/// Shows a view of a model under a name.
void prepare(QAbstractItemView *view, QAbstractItemModel *model, const QString &name = "people")
{
    view->setModel(model);
    view->setObjectName(name);
    view->resize(300, 200);
    view->show();
}

HRPart cellOf(QAbstractItemView *view, int row, int column)
{
    const QPoint middle = view->visualRect(view->model()->index(row, column)).center();
    return *cellAt(view, view->viewport()->mapTo(view, middle));
}

HRPart sectionOf(QHeaderView *header, int section)
{
    const int start = header->sectionViewportPosition(section) + 2;
    return *sectionAt(
        header, header->orientation() == Qt::Horizontal ? QPoint(start, 2) : QPoint(2, start));
}

QStringList firstNames(const QVector<HRPart> &parts)
{
    QStringList names;
    for (const HRPart &part : parts)
        names.append(part.names.value(0));
    return names;
}

} // namespace

/// What differs from view to view; tst_partAt has the usual ones in a window.
class tst_viewParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void otherWidgets_areNone();
    void section_goesByItsView_orByItsHeader_data();
    void section_goesByItsView_orByItsHeader();
    void header_isOnePart_besideItsSections();
    void sections_areThoseThatAreSeen();
    void cell_ofATable_goesByColumnAndRow();
    void item_ofATree_goesByItsRow_data();
    void item_ofATree_goesByItsRow();
    void item_ofANamelessView_hasNoNames();
    void list_isNamedByItsBox_andNoOther();
    void view_isOnePart_besideItsItems();
    void items_areThoseWithKeys();
};

void tst_viewParts::otherWidgets_areNone()
{
    QWidget widget;
    QVERIFY(!sectionAt(&widget, QPoint()));
    QVERIFY(!cellAt(&widget, QPoint()));
}

void tst_viewParts::section_goesByItsView_orByItsHeader_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<int>("section");
    QTest::addColumn<QStringList>("names"); // behind that of view or header
    QTest::addColumn<QString>("text");
    QTest::newRow("column with a text")
        << Qt::Horizontal << 0 << QStringList{ "/Name", "/column1" } << "Name";
    QTest::newRow("column with its number")
        << Qt::Horizontal << 1 << QStringList{ "/column2" } << "";
    QTest::newRow("row with its number") << Qt::Vertical << 0 << QStringList{ "/row1" } << "";
    QTest::newRow("row with a text")
        << Qt::Vertical << 1 << QStringList{ "/Guests", "/row2" } << "Guests";
}

void tst_viewParts::section_goesByItsView_orByItsHeader()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(int, section);
    QFETCH(QStringList, names);
    Model model;
    QTableView table;
    prepare(&table, &model);
    QHeaderView alone(orientation);
    prepare(&alone, &model, "legend");
    auto *inTable
        = orientation == Qt::Horizontal ? table.horizontalHeader() : table.verticalHeader();

    for (QHeaderView *header : { inTable, &alone }) {
        const HRPart part = sectionOf(header, section);
        const QString place = header == inTable ? "people" : "legend";
        QCOMPARE(part.names, QStringList(names).replaceInStrings(QRegularExpression("^"), place));
        QTEST(part.text, "text");
        QVERIFY(part.showsText);
        const int length = orientation == Qt::Horizontal ? part.area.width() : part.area.height();
        QCOMPARE(length, header->sectionSize(section));
    }
}

void tst_viewParts::header_isOnePart_besideItsSections()
{
    QHeaderView header(Qt::Horizontal);
    header.setObjectName("legend");
    QCOMPARE(sectionAt(&header, QPoint(2, 2))->names, QStringList("legend"));
    Model model;
    prepare(&header, &model, "legend");
    const std::optional<HRPart> beside = sectionAt(&header, QPoint(header.length() + 5, 2));
    QCOMPARE(beside->names, QStringList("legend"));
    QVERIFY(beside->area.isNull());
}

void tst_viewParts::sections_areThoseThatAreSeen()
{
    QHeaderView header(Qt::Horizontal);
    QVERIFY(sections(&header).isEmpty());
    Model model;
    prepare(&header, &model, "legend");
    QCOMPARE(firstNames(sections(&header)), QStringList({ "legend/Name", "legend/column2" }));
    header.hideSection(0);
    QCOMPARE(firstNames(sections(&header)), QStringList("legend/column2"));
}

void tst_viewParts::cell_ofATable_goesByColumnAndRow()
{
    Model model;
    model.setHeaderData(0, Qt::Horizontal, "name", partKeyRole);
    QTableView table;
    prepare(&table, &model);
    const HRPart part = cellOf(&table, 1, 0);
    QCOMPARE(part.names,
        QStringList(
            { "name", "people/Name", "people/column1", "people/Guests", "people/row2", "people" }));
    QCOMPARE(part.text, QString("Name"));
    QVERIFY(!part.showsText);
}

void tst_viewParts::item_ofATree_goesByItsRow_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("text");
    QTest::newRow("one column") << 1 << 0 << 0 << QStringList{ "people/Ada", "people" } << "Ada";
    QTest::newRow("second of two")
        << 2 << 0 << 1 << QStringList{ "people/Ada", "people/column2", "people" } << "36";
    QTest::newRow("no text") << 1 << 1 << 0 << QStringList("people") << "";
}

void tst_viewParts::item_ofATree_goesByItsRow()
{
    QFETCH(int, columns);
    QFETCH(int, row);
    QFETCH(int, column);
    Model model;
    model.setColumnCount(columns);
    QTreeView tree;
    prepare(&tree, &model);
    const HRPart part = cellOf(&tree, row, column);
    QTEST(part.names, "names");
    QTEST(part.text, "text");
    QVERIFY(part.showsText);
}

void tst_viewParts::item_ofANamelessView_hasNoNames()
{
    Model model;
    QListView list;
    prepare(&list, &model, QString());
    const HRPart part = cellOf(&list, 0, 0);
    QVERIFY(part.isNameless());
    QCOMPARE(part.text, QString("Ada"));
}

void tst_viewParts::list_isNamedByItsBox_andNoOther()
{
    Model model;
    model.setColumnCount(1);
    QComboBox box;
    box.setObjectName("box");
    box.setModel(&model);
    box.showPopup();
    QVERIFY(QTest::qWaitForWindowExposed(box.view()->window()));
    QCOMPARE(cellOf(box.view(), 0, 0).names, QStringList({ "box/Ada", "box" }));
    box.hidePopup();
    auto *other = new QListView(&box);
    prepare(other, &model, "other");
    QCOMPARE(cellOf(other, 0, 0).names, QStringList({ "other/Ada", "other" }));
}

void tst_viewParts::view_isOnePart_besideItsItems()
{
    QListView list;
    list.setObjectName("people");
    QCOMPARE(cellAt(&list, QPoint(5, 5))->names, QStringList("people"));
    Model model;
    prepare(&list, &model);
    const std::optional<HRPart> beside = cellAt(&list, QPoint(5, 190));
    QCOMPARE(beside->names, QStringList("people"));
    QVERIFY(beside->area.isNull());
}

void tst_viewParts::items_areThoseWithKeys()
{
    QTreeView tree;
    tree.setObjectName("people");
    QCOMPARE(firstNames(cells(&tree)), QStringList("people"));
    QStandardItemModel empty;
    tree.setModel(&empty);
    QCOMPARE(firstNames(cells(&tree)), QStringList("people"));
    Model model;
    model.setColumnCount(1);
    auto *child = new QStandardItem("Grace");
    child->setData("navy/admiral", partKeyRole);
    model.item(0, 0)->appendRow(child);
    tree.setModel(&model);
    const QVector<HRPart> parts = cells(&tree);
    QCOMPARE(firstNames(parts), QStringList({ "people", "people/Grace" }));
    QCOMPARE(parts[1].key, QString("navy/admiral"));
}

QTEST_MAIN(tst_viewParts)
#include "tst_viewParts.moc"
