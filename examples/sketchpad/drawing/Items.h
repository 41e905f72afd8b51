// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QGraphicsPathItem>
#include <QGraphicsTextItem>

namespace Sketchpad {

/// The colours and the width that new items get; the width is in units of the drawing.
struct Style
{
    QColor stroke;
    QColor fill;
    qreal width = 1.0;
};

/// A stroke, a line, a rectangle or an ellipse: whatever is an outline, perhaps with a filling.
class ShapeItem : public QGraphicsPathItem
{
public:
    enum
    {
        Type = UserType + 1
    };

    /// @param fill transparent for shapes that are lines only
    ShapeItem(const Style &style, const QColor &fill);

    int type() const override { return Type; }
    /// The outline, a little wider than it is painted, and the inside of filled and closed paths.
    QPainterPath shape() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;
};

/// A text that can be edited in place.
class TextItem : public QGraphicsTextItem
{
    Q_OBJECT

public:
    enum
    {
        Type = UserType + 2
    };

    explicit TextItem(const Style &style);

    int type() const override { return Type; }
    /// Takes the keyboard until the focus goes elsewhere or Escape is pressed.
    void edit();
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

Q_SIGNALS:
    /// @param before the text when editing began
    void edited(TextItem *item, const QString &before);

protected:
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QString m_before;
};

/// What the fill tool changes: the inside of a shape, the letters of a text.
QColor fillOf(const QGraphicsItem *item);
void setFill(QGraphicsItem *item, const QColor &fill);

} // namespace Sketchpad
