// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "drawing/Items.h"

#include <QFocusEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPalette>
#include <QPen>
#include <QStyleOptionGraphicsItem>
#include <QTextCursor>

namespace Sketchpad {

namespace {

// Thin lines must be wide enough to be hit without aiming.
constexpr qreal narrowestTarget = 8.0;
constexpr int textPixelSize = 24;

bool isClosed(const QPainterPath &path)
{
    return path.elementCount() > 2
        && QPointF(path.elementAt(0)) == QPointF(path.elementAt(path.elementCount() - 1));
}

void makeEditable(QGraphicsItem *item)
{
    item->setFlags(QGraphicsItem::ItemIsSelectable | QGraphicsItem::ItemIsMovable);
}

// Qt marks a selected item with a dashed frame in the pen's colour, which is hard to see on many
// drawings; this one has the palette's highlight colour and keeps its width at every zoom.
QStyleOptionGraphicsItem paintSelection(
    QPainter *painter, const QStyleOptionGraphicsItem &option, const QRectF &rect)
{
    QStyleOptionGraphicsItem plain(option);
    plain.state &= ~(QStyle::State_Selected | QStyle::State_HasFocus);
    if (option.state & (QStyle::State_Selected | QStyle::State_HasFocus)) {
        QPen pen(QGuiApplication::palette().color(QPalette::Highlight), 1.5);
        pen.setCosmetic(true);
        painter->setPen(pen);
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(rect);
    }
    return plain;
}

} // namespace

ShapeItem::ShapeItem(const Style &style, const QColor &fill)
{
    setPen(QPen(style.stroke, style.width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    setBrush(fill);
    makeEditable(this);
}

QPainterPath ShapeItem::shape() const
{
    QPainterPathStroker stroker;
    stroker.setWidth(qMax(pen().widthF(), narrowestTarget));
    const QPainterPath outline = stroker.createStroke(path());
    const bool hasInside = isClosed(path()) || brush().color().alpha() > 0;
    return hasInside ? outline.united(path()) : outline;
}

void ShapeItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    const QStyleOptionGraphicsItem plain = paintSelection(painter, *option, boundingRect());
    QGraphicsPathItem::paint(painter, &plain, widget);
}

TextItem::TextItem(const Style &style)
{
    QFont font;
    font.setPixelSize(textPixelSize);
    setFont(font);
    setDefaultTextColor(style.stroke);
    makeEditable(this);
}

void TextItem::edit()
{
    m_before = toPlainText();
    setTextInteractionFlags(Qt::TextEditorInteraction);
    setFocus(Qt::MouseFocusReason);
    QTextCursor cursor = textCursor();
    cursor.movePosition(QTextCursor::End);
    setTextCursor(cursor);
}

void TextItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget)
{
    const QStyleOptionGraphicsItem plain = paintSelection(painter, *option, boundingRect());
    QGraphicsTextItem::paint(painter, &plain, widget);
}

void TextItem::focusOutEvent(QFocusEvent *event)
{
    QGraphicsTextItem::focusOutEvent(event);
    // The text's own context menu takes the focus for a moment only.
    if (event->reason() == Qt::PopupFocusReason || textInteractionFlags() == Qt::NoTextInteraction)
        return;
    setTextInteractionFlags(Qt::NoTextInteraction);
    setTextCursor(QTextCursor(document()));
    Q_EMIT edited(this, m_before);
}

void TextItem::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        clearFocus();
    else
        QGraphicsTextItem::keyPressEvent(event);
}

QColor fillOf(const QGraphicsItem *item)
{
    if (const auto *text = qgraphicsitem_cast<const TextItem *>(item))
        return text->defaultTextColor();
    if (const auto *shape = qgraphicsitem_cast<const ShapeItem *>(item))
        return shape->brush().color();
    return {};
}

void setFill(QGraphicsItem *item, const QColor &fill)
{
    if (auto *text = qgraphicsitem_cast<TextItem *>(item))
        text->setDefaultTextColor(fill);
    else if (auto *shape = qgraphicsitem_cast<ShapeItem *>(item))
        shape->setBrush(fill);
}

} // namespace Sketchpad
