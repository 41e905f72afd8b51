// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/parts/viewParts_p.h"

#include "widgets/parts/partName_p.h"

#include <QComboBox>
#include <QHeaderView>
#include <QPersistentModelIndex>
#include <QTableView>

#include <algorithm>

namespace Hintreels {

namespace {

static_assert(partKeyRole > Qt::UserRole);

// Of the models that are far larger, nobody gives each row a hint.
constexpr int mostKeyedItems = 1'000; // in a column
constexpr int mostKeyedColumns = 100;

// A host's model may delete anything when it is asked: views, and itself.
using Model = QPointer<const QAbstractItemModel>;

QString headerData(
    const Model &model, int section, Qt::Orientation orientation, int role = Qt::DisplayRole)
{
    return model ? model->headerData(section, orientation, role).toString() : QString();
}

/// Who lends its name to what is in a view: the combo box, where it is the list of one.
const QWidget *namesakeOf(const QAbstractItemView *view)
{
    for (const QWidget *above = view->parentWidget(); above; above = above->parentWidget()) {
        const auto *box = qobject_cast<const QComboBox *>(above);
        if (box && box->view() == view)
            return box;
    }
    return view;
}

void addName(HRPart *part, const QString &place, const QString &name)
{
    if (!place.isEmpty() && !name.isEmpty())
        part->names.append(place + u'/' + name);
}

/// What stands over a column or beside a row; empty for the number that Qt writes by itself.
QString sectionText(const Model &model, int section, Qt::Orientation orientation)
{
    const QString text = headerData(model, section, orientation).simplified();
    return text == QString::number(section + 1) ? QString() : text;
}

/// The names of a column or a row: its key, its text, which readers of other languages see in
/// theirs, and its number, as people count.
void addSection(HRPart *part, const QString &place, const Model &model, int section,
    Qt::Orientation orientation)
{
    const QString key = headerData(model, section, orientation, partKeyRole);
    if (!key.isEmpty())
        part->names.append(key);
    addName(part, place, sectionText(model, section, orientation));
    addName(part, place,
        (orientation == Qt::Horizontal ? QStringLiteral("column%1") : QStringLiteral("row%1"))
            .arg(section + 1));
}

QRect areaOf(const QHeaderView &header, int section)
{
    const int start = header.sectionViewportPosition(section);
    const int size = header.sectionSize(section);
    return header.orientation() == Qt::Horizontal
        ? QRect(start, 0, size, header.viewport()->height())
        : QRect(0, start, header.viewport()->width(), size);
}

HRPart sectionOf(QHeaderView *header, int section)
{
    const auto *view = qobject_cast<const QAbstractItemView *>(header->parent());
    const Model model = header->model();
    const Qt::Orientation orientation = header->orientation();
    const QString place = nameOf(view ? view : header);
    HRPart part(header->viewport(), areaOf(*header, section));
    part.key = headerData(model, section, orientation, partKeyRole);
    addSection(&part, place, model, section, orientation);
    part.text = sectionText(model, section, orientation);
    part.showsText = true;
    return part;
}

void readCell(HRPart *part, const QString &place, const QModelIndex &index)
{
    const Model model = index.model();
    const int column = index.column();
    const int row = index.row();
    addSection(part, place, model, column, Qt::Horizontal);
    addSection(part, place, model, row, Qt::Vertical);
    part->text = sectionText(model, column, Qt::Horizontal);
}

void readItem(HRPart *part, const QString &place, const QPersistentModelIndex &index)
{
    addName(part, place, index.sibling(index.row(), 0).data().toString().simplified());
    const Model model = index.model();
    if (model && model->columnCount(index.parent()) > 1)
        addSection(part, place, model, index.column(), Qt::Horizontal);
    part->text = index.data().toString().simplified();
    part->showsText = true;
}

/// The items of a model that carry a key, in its first columns and rows.
QVector<QPersistentModelIndex> keyedItems(const Model &model, const QPersistentModelIndex &root)
{
    QVector<QPersistentModelIndex> items;
    for (int column = 0; model && column < std::min(model->columnCount(root), mostKeyedColumns);
         ++column) {
        const QModelIndex first = model->index(0, column, root);
        if (!first.isValid())
            continue;
        const QModelIndexList keyed = model->match(first, partKeyRole, QStringLiteral("."),
            mostKeyedItems, Qt::MatchRegularExpression | Qt::MatchRecursive);
        for (const QModelIndex &index : keyed)
            items.append(index);
    }
    return items;
}

HRPart wholeView(QAbstractItemView *view)
{
    HRPart part(view);
    part.goesBy(namesakeOf(view));
    return part;
}

HRPart cell(QAbstractItemView *view, const QPersistentModelIndex &index)
{
    const QPointer<const QWidget> namesake = namesakeOf(view);
    const QString place = nameOf(namesake);
    const bool isTable = qobject_cast<QTableView *>(view);
    // The items of a list may be wider than the list.
    HRPart part(view->viewport(), view->visualRect(index) & view->viewport()->rect());
    part.key = index.data(partKeyRole).toString();
    if (isTable)
        readCell(&part, place, index);
    else
        readItem(&part, place, index);
    part.goesBy(namesake);
    return part;
}

} // namespace

std::optional<HRPart> sectionAt(QWidget *widget, const QPoint &position)
{
    auto *header = qobject_cast<QHeaderView *>(widget);
    if (!header)
        return std::nullopt;
    const QPoint inside = header->viewport()->mapFrom(header, position);
    const int section = header->model() ? header->logicalIndexAt(inside) : -1;
    return section >= 0 ? sectionOf(header, section) : wholeView(header);
}

HRPart currentSection(QWidget *widget)
{
    auto *header = static_cast<QHeaderView *>(widget);
    const auto *view = qobject_cast<const QAbstractItemView *>(header->parent());
    const QModelIndex index = view ? view->currentIndex() : header->currentIndex();
    const int section = header->orientation() == Qt::Horizontal ? index.column() : index.row();
    return section >= 0 ? sectionOf(header, section) : wholeView(header);
}

QVector<HRPart> sections(QWidget *widget)
{
    const QPointer<QHeaderView> header = static_cast<QHeaderView *>(widget);
    const bool isOfRows = header->orientation() == Qt::Vertical;
    QVector<HRPart> parts;
    for (int i = 0; header && header->model() && i < header->count(); ++i) {
        if (header->isSectionHidden(i))
            continue;
        const HRPart part = sectionOf(header, i);
        // Nobody gives the number of a row a hint.
        if (!isOfRows || !part.text.isEmpty() || !part.key.isEmpty())
            parts.append(part);
    }
    return parts;
}

std::optional<HRPart> cellAt(QWidget *widget, const QPoint &position)
{
    auto *view = qobject_cast<QAbstractItemView *>(widget);
    if (!view)
        return std::nullopt;
    const QModelIndex index = view->indexAt(view->viewport()->mapFrom(view, position));
    return index.isValid() ? cell(view, index) : wholeView(view);
}

HRPart currentCell(QWidget *widget)
{
    auto *view = static_cast<QAbstractItemView *>(widget);
    const QModelIndex index = view->currentIndex();
    return index.isValid() ? cell(view, index) : wholeView(view);
}

QVector<HRPart> cells(QWidget *widget)
{
    const QPointer<QAbstractItemView> view = static_cast<QAbstractItemView *>(widget);
    QVector<HRPart> parts{ wholeView(view) };
    const QVector<QPersistentModelIndex> keyed = keyedItems(view->model(), view->rootIndex());
    for (const QPersistentModelIndex &index : keyed) {
        if (view && index.isValid())
            parts.append(cell(view, index));
    }
    return parts;
}

} // namespace Hintreels
