// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "drawing/Drawing.h"

#include "drawing/Commands.h"
#include "tools/Tool.h"

#include <QGraphicsSceneMouseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPalette>

namespace Sketchpad {

namespace {

// Room around the sheet, so that any corner of it can be scrolled to the middle.
constexpr qreal surroundings = 300;
constexpr qreal smallStep = 1;
constexpr qreal largeStep = 10;

QPointF directionOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return { -1, 0 };
    case Qt::Key_Right:
        return { 1, 0 };
    case Qt::Key_Up:
        return { 0, -1 };
    case Qt::Key_Down:
        return { 0, 1 };
    default:
        return {};
    }
}

} // namespace

Drawing::Drawing(QObject *parent)
    : QGraphicsScene(parent)
    , m_style{ QColor(0x22, 0x31, 0x4f), QColor(0xff, 0xe0, 0x8a), 3.0 }
{
    m_history.setUndoLimit(undoLimit);
    setSceneRect(sheet().adjusted(-surroundings, -surroundings, surroundings, surroundings));
}

QRectF Drawing::sheet()
{
    return { 0, 0, 900, 600 };
}

void Drawing::setPaper(const QColor &paper)
{
    m_paper = paper;
    update();
}

void Drawing::setTool(Tool *tool)
{
    if (m_tool)
        m_tool->cancel();
    setFocusItem(nullptr);
    clearSelection();
    m_tool = tool;
}

void Drawing::place(QGraphicsItem *item)
{
    item->setZValue(++m_topmost);
    addItem(item);
    if (item->type() == TextItem::Type)
        connect(static_cast<TextItem *>(item), &TextItem::edited, this, &Drawing::finishText);
}

void Drawing::add(QGraphicsItem *item, const QString &text)
{
    m_history.push(new AddItem(*this, item, text));
}

void Drawing::remove(const QList<QGraphicsItem *> &items, const QString &text)
{
    if (!items.isEmpty())
        m_history.push(new RemoveItems(*this, items, text));
}

void Drawing::fillAt(const QPointF &position)
{
    if (QGraphicsItem *item = itemAt(position, QTransform()))
        m_history.push(new FillItem(item, m_style.fill));
    else
        m_history.push(new FillPaper(*this, m_style.fill));
}

void Drawing::editTextAt(const QPointF &position)
{
    auto *text = qgraphicsitem_cast<TextItem *>(itemAt(position, QTransform()));
    if (!text) {
        text = new TextItem(m_style);
        place(text);
        text->setPos(position - QPointF(0, text->boundingRect().center().y()));
    }
    text->edit();
}

void Drawing::finishText(TextItem *item, const QString &before)
{
    const QString after = item->toPlainText();
    if (after.isEmpty() && before.isEmpty()) {
        removeItem(item);
        item->deleteLater();
    } else if (before.isEmpty()) {
        add(item, tr("Text"));
    } else if (after.isEmpty()) {
        item->setPlainText(before);
        remove({ item }, tr("Delete Text"));
    } else if (after != before) {
        m_history.push(new EditText(item, before));
    }
}

void Drawing::recordMoves(const QHash<QGraphicsItem *, QPointF> &before)
{
    QVector<MoveItems::Move> moves;
    for (auto it = before.begin(); it != before.end(); ++it) {
        if (it.key()->pos() != it.value())
            moves.append({ it.key(), it.value(), it.key()->pos() });
    }
    if (!moves.isEmpty())
        m_history.push(new MoveItems(moves, tr("Move")));
}

void Drawing::alignSelection(Alignment alignment)
{
    const QList<QGraphicsItem *> items = selectedItems();
    QVector<QRectF> rects;
    for (const QGraphicsItem *item : items)
        rects.append(item->sceneBoundingRect());
    const QVector<QPointF> offsets = alignmentOffsets(rects, alignment);
    QVector<MoveItems::Move> moves;
    for (int i = 0; i < items.size(); ++i)
        moves.append({ items[i], items[i]->pos(), items[i]->pos() + offsets[i] });
    if (!moves.isEmpty())
        m_history.push(new MoveItems(moves, tr("Align")));
}

void Drawing::nudgeSelection(const QPointF &offset)
{
    QVector<MoveItems::Move> moves;
    for (QGraphicsItem *item : selectedItems())
        moves.append({ item, item->pos(), item->pos() + offset });
    m_history.push(new NudgeItems(moves, tr("Move")));
}

void Drawing::deleteSelection()
{
    remove(selectedItems(), tr("Delete"));
}

void Drawing::selectAll()
{
    QPainterPath everything;
    everything.addRect(itemsBoundingRect());
    setSelectionArea(everything);
}

void Drawing::cancel()
{
    if (!m_tool || !m_tool->cancel())
        clearSelection();
}

void Drawing::startAnew()
{
    if (m_tool)
        m_tool->cancel();
    m_history.clear();
    clear();
    setPaper(Qt::white);
}

QImage Drawing::toImage()
{
    const QList<QGraphicsItem *> selected = selectedItems();
    clearSelection();
    QImage image(sheet().size().toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(m_paper);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    render(&painter, sheet(), sheet());
    for (QGraphicsItem *item : selected)
        item->setSelected(true);
    return image;
}

void Drawing::drawBackground(QPainter *painter, const QRectF &rect)
{
    const QPalette palette = QGuiApplication::palette();
    painter->fillRect(rect, palette.color(QPalette::Mid));
    painter->fillRect(sheet().translated(3, 3), palette.color(QPalette::Dark));
    painter->fillRect(sheet(), m_paper);
}

bool Drawing::isEditingAt(const QPointF &position) const
{
    return focusItem() && focusItem()->contains(focusItem()->mapFromScene(position));
}

void Drawing::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    if (isEditingAt(event->scenePos())) {
        QGraphicsScene::mousePressEvent(event);
        return;
    }
    setFocusItem(nullptr);
    if (m_tool && m_tool->press(*event))
        event->accept();
    else
        QGraphicsScene::mousePressEvent(event);
}

void Drawing::mouseMoveEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_tool)
        m_tool->drag(*event);
    QGraphicsScene::mouseMoveEvent(event);
}

void Drawing::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    if (m_tool)
        m_tool->release(*event);
    QGraphicsScene::mouseReleaseEvent(event);
}

void Drawing::mouseDoubleClickEvent(QGraphicsSceneMouseEvent *event)
{
    if (isEditingAt(event->scenePos()))
        QGraphicsScene::mouseDoubleClickEvent(event);
    else if (auto *text = qgraphicsitem_cast<TextItem *>(itemAt(event->scenePos(), QTransform())))
        text->edit();
    else
        mousePressEvent(event);
}

void Drawing::keyPressEvent(QKeyEvent *event)
{
    const QPointF direction = directionOf(event->key());
    if (focusItem()) {
        QGraphicsScene::keyPressEvent(event);
    } else if (event->key() == Qt::Key_Escape) {
        cancel();
    } else if (!direction.isNull() && !selectedItems().isEmpty()) {
        nudgeSelection(
            direction * (event->modifiers() & Qt::ShiftModifier ? largeStep : smallStep));
        event->accept();
    } else {
        QGraphicsScene::keyPressEvent(event);
    }
}

} // namespace Sketchpad
