// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "drawing/Commands.h"

#include "drawing/Drawing.h"
#include "drawing/Items.h"

#include <QCoreApplication>

namespace Sketchpad {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("Commands", text);
}

} // namespace

AddItem::AddItem(Drawing &drawing, QGraphicsItem *item, const QString &text)
    : QUndoCommand(text)
    , m_drawing(drawing)
    , m_item(item)
{
}

AddItem::~AddItem()
{
    if (m_owns)
        delete m_item;
}

void AddItem::undo()
{
    m_drawing.removeItem(m_item);
    m_owns = true;
}

void AddItem::redo()
{
    // A tool adds the item itself while the user is drawing it.
    if (!m_item->scene())
        m_drawing.addItem(m_item);
    m_owns = false;
}

RemoveItems::RemoveItems(Drawing &drawing, const QList<QGraphicsItem *> &items, const QString &text)
    : QUndoCommand(text)
    , m_drawing(drawing)
    , m_items(items)
{
}

RemoveItems::~RemoveItems()
{
    if (m_owns)
        qDeleteAll(m_items);
}

void RemoveItems::undo()
{
    for (QGraphicsItem *item : qAsConst(m_items))
        m_drawing.addItem(item);
    m_owns = false;
}

void RemoveItems::redo()
{
    for (QGraphicsItem *item : qAsConst(m_items))
        m_drawing.removeItem(item);
    m_owns = true;
}

MoveItems::MoveItems(const QVector<Move> &moves, const QString &text)
    : QUndoCommand(text)
    , m_moves(moves)
{
}

void MoveItems::undo()
{
    for (const Move &move : qAsConst(m_moves))
        move.item->setPos(move.from);
}

void MoveItems::redo()
{
    for (const Move &move : qAsConst(m_moves))
        move.item->setPos(move.to);
}

bool NudgeItems::mergeWith(const QUndoCommand *other)
{
    const auto &later = static_cast<const NudgeItems *>(other)->m_moves;
    const auto sameItem = [](const Move &a, const Move &b) { return a.item == b.item; };
    if (!std::equal(m_moves.begin(), m_moves.end(), later.begin(), later.end(), sameItem))
        return false;
    for (int i = 0; i < m_moves.size(); ++i)
        m_moves[i].to = later[i].to;
    return true;
}

FillItem::FillItem(QGraphicsItem *item, const QColor &fill)
    : QUndoCommand(tr("Fill"))
    , m_item(item)
    , m_before(fillOf(item))
    , m_after(fill)
{
}

void FillItem::undo()
{
    setFill(m_item, m_before);
}

void FillItem::redo()
{
    setFill(m_item, m_after);
}

FillPaper::FillPaper(Drawing &drawing, const QColor &fill)
    : QUndoCommand(tr("Fill Background"))
    , m_drawing(drawing)
    , m_before(drawing.paper())
    , m_after(fill)
{
}

void FillPaper::undo()
{
    m_drawing.setPaper(m_before);
}

void FillPaper::redo()
{
    m_drawing.setPaper(m_after);
}

EditText::EditText(TextItem *item, const QString &before)
    : QUndoCommand(tr("Edit Text"))
    , m_item(item)
    , m_before(before)
    , m_after(item->toPlainText())
{
}

void EditText::undo()
{
    m_item->setPlainText(m_before);
}

void EditText::redo()
{
    m_item->setPlainText(m_after);
}

} // namespace Sketchpad
