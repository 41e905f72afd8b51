// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Geometry.h"
#include "drawing/Items.h"

#include <QGraphicsScene>
#include <QUndoStack>

namespace Sketchpad {

class Tool;

/// The sheet with all items on it, and the steps that led there.
///
/// Every change goes through an operation here that can be undone. Mouse events go to the current
/// tool first, and to the items where the tool leaves them to those.
class Drawing : public QGraphicsScene
{
    Q_OBJECT

public:
    static constexpr int undoLimit = 100;

    explicit Drawing(QObject *parent = nullptr);

    /// The part of the plane that is exported; items may lie beside it.
    static QRectF sheet();

    QUndoStack &history() { return m_history; }

    QColor paper() const { return m_paper; }
    /// Sets the colour of the sheet at once; fillAt() is the step that can be undone.
    void setPaper(const QColor &paper);

    /// What new items look like; changing it leaves the others as they are.
    Style &style() { return m_style; }

    /// The tool must outlive the drawing; null lets the items have all events.
    void setTool(Tool *tool);

    /// Takes an item into the drawing, on top of all others, without a step to undo.
    void place(QGraphicsItem *item);
    /// Takes a finished item into the drawing. A tool may have placed it before.
    void add(QGraphicsItem *item, const QString &text);
    void remove(const QList<QGraphicsItem *> &items, const QString &text);
    /// Fills the topmost item at a position, or else the sheet, with the style's fill colour.
    void fillAt(const QPointF &position);
    /// Starts editing the text at a position, a new one where there is none.
    void editTextAt(const QPointF &position);
    /// Records where items went that were moved by the pointer.
    void recordMoves(const QHash<QGraphicsItem *, QPointF> &before);

    void alignSelection(Alignment alignment);
    void deleteSelection();
    void selectAll();
    /// Cancels what the tool has begun, or else selects nothing.
    void cancel();
    /// Starts again with an empty white sheet; this cannot be undone.
    void startAnew();

    /// The sheet at its own size, one pixel a unit, without selection frames.
    QImage toImage();

protected:
    void drawBackground(QPainter *painter, const QRectF &rect) override;
    void mousePressEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseMoveEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent *event) override;
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool isEditingAt(const QPointF &position) const;
    void finishText(TextItem *item, const QString &before);
    void nudgeSelection(const QPointF &offset);

    QColor m_paper = Qt::white;
    Style m_style;
    Tool *m_tool = nullptr;
    qreal m_topmost = 0.0;
    // Destroyed before the base class deletes the items: the commands look at those.
    QUndoStack m_history;
};

} // namespace Sketchpad
