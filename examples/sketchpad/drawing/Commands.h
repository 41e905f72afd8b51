// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QGraphicsItem>
#include <QList>
#include <QUndoCommand>
#include <QVector>

namespace Sketchpad {

class Drawing;
class TextItem;

/// Adds an item. While undone, the command owns it; otherwise the drawing does.
class AddItem : public QUndoCommand
{
public:
    AddItem(Drawing &drawing, QGraphicsItem *item, const QString &text);
    ~AddItem() override;
    void undo() override;
    void redo() override;

private:
    Drawing &m_drawing;
    QGraphicsItem *m_item;
    bool m_owns = false;
};

/// Removes items. While done, the command owns them; otherwise the drawing does.
class RemoveItems : public QUndoCommand
{
public:
    RemoveItems(Drawing &drawing, const QList<QGraphicsItem *> &items, const QString &text);
    ~RemoveItems() override;
    void undo() override;
    void redo() override;

private:
    Drawing &m_drawing;
    QList<QGraphicsItem *> m_items;
    bool m_owns = false;
};

/// Moves each item by an offset of its own.
class MoveItems : public QUndoCommand
{
public:
    struct Move
    {
        QGraphicsItem *item;
        QPointF from;
        QPointF to;
    };

    MoveItems(const QVector<Move> &moves, const QString &text);
    void undo() override;
    void redo() override;

protected:
    QVector<Move> m_moves;
};

/// Moves items by the arrow keys: presses in a row become one step.
class NudgeItems : public MoveItems
{
public:
    using MoveItems::MoveItems;
    int id() const override { return 1; }
    bool mergeWith(const QUndoCommand *other) override;
};

/// Changes the colour inside an item.
class FillItem : public QUndoCommand
{
public:
    FillItem(QGraphicsItem *item, const QColor &fill);
    void undo() override;
    void redo() override;

private:
    QGraphicsItem *m_item;
    QColor m_before;
    QColor m_after;
};

/// Changes the colour of the paper.
class FillPaper : public QUndoCommand
{
public:
    FillPaper(Drawing &drawing, const QColor &fill);
    void undo() override;
    void redo() override;

private:
    Drawing &m_drawing;
    QColor m_before;
    QColor m_after;
};

/// Replaces the text of a text item.
class EditText : public QUndoCommand
{
public:
    EditText(TextItem *item, const QString &before);
    void undo() override;
    void redo() override;

private:
    TextItem *m_item;
    QString m_before;
    QString m_after;
};

} // namespace Sketchpad
