// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "widgets/parts/viewParts_p.h"

#include "widgets/parts/partName_p.h"

#include <QComboBox>
#include <QHeaderView>
#include <QTableView>

namespace Hintreels {

namespace {

static_assert(partKeyRole > Qt::UserRole);

// Of the models that are far larger, nobody gives each row a hint.
constexpr int mostKeyedItems = 1'000;

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
QString sectionText(const QAbstractItemModel &model, int section, Qt::Orientation orientation)
{
    const QString text = model.headerData(section, orientation).toString().simplified();
    return text == QString::number(section + 1) ? QString() : text;
}

/// The names of a column or a row: its key, its text, which readers of other languages see in
/// theirs, and its number, as people count.
void addSection(HRPart *part, const QString &place, const QAbstractItemModel &model, int section,
    Qt::Orientation orientation)
{
    const QString key = model.headerData(section, orientation, partKeyRole).toString();
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
    const QAbstractItemModel &model = *header->model();
    HRPart part(header->viewport(), areaOf(*header, section));
    part.key = model.headerData(section, header->orientation(), partKeyRole).toString();
    addSection(&part, nameOf(view ? view : header), model, section, header->orientation());
    part.text = sectionText(model, section, header->orientation());
    part.showsText = true;
    return part;
}

void readCell(HRPart *part, const QString &place, const QModelIndex &index)
{
    addSection(part, place, *index.model(), index.column(), Qt::Horizontal);
    addSection(part, place, *index.model(), index.row(), Qt::Vertical);
    part->text = sectionText(*index.model(), index.column(), Qt::Horizontal);
}

void readItem(HRPart *part, const QString &place, const QModelIndex &index)
{
    addName(part, place, index.siblingAtColumn(0).data().toString().simplified());
    if (index.model()->columnCount(index.parent()) > 1)
        addSection(part, place, *index.model(), index.column(), Qt::Horizontal);
    part->text = index.data().toString().simplified();
    part->showsText = true;
}

HRPart wholeView(QAbstractItemView *view)
{
    HRPart part(view);
    part.goesBy(namesakeOf(view));
    return part;
}

HRPart cell(QAbstractItemView *view, const QModelIndex &index)
{
    // The items of a list may be wider than the list.
    HRPart part(view->viewport(), view->visualRect(index) & view->viewport()->rect());
    part.key = index.data(partKeyRole).toString();
    const QWidget *namesake = namesakeOf(view);
    if (qobject_cast<QTableView *>(view))
        readCell(&part, nameOf(namesake), index);
    else
        readItem(&part, nameOf(namesake), index);
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
    auto *header = static_cast<QHeaderView *>(widget);
    QVector<HRPart> parts;
    for (int i = 0; header->model() && i < header->count(); ++i) {
        if (!header->isSectionHidden(i))
            parts.append(sectionOf(header, i));
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
    auto *view = static_cast<QAbstractItemView *>(widget);
    QVector<HRPart> parts{ wholeView(view) };
    const QAbstractItemModel *model = view->model();
    if (!model || !model->hasChildren(view->rootIndex()))
        return parts;
    const QString anyKey = QStringLiteral(".");
    const QModelIndexList keyed = model->match(model->index(0, 0, view->rootIndex()), partKeyRole,
        anyKey, mostKeyedItems, Qt::MatchRegularExpression | Qt::MatchRecursive);
    for (const QModelIndex &index : keyed)
        parts.append(cell(view, index));
    return parts;
}

} // namespace Hintreels
