// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QGraphicsView>

namespace Sketchpad {

class Drawing;

/// The view of the drawing: scrolls, zooms, and tells where the pointer is.
class Canvas : public QGraphicsView
{
    Q_OBJECT

public:
    explicit Canvas(Drawing &drawing, QWidget *parent = nullptr);

    /// 1.0 shows one unit of the drawing as one pixel.
    qreal zoom() const;

public Q_SLOTS:
    /// The point under the pointer stays where it is; without the pointer, the middle does.
    void zoomIn();
    void zoomOut();
    void zoomToActualSize();
    /// Shows everything drawn, or the empty sheet.
    void zoomToFit();
    void zoomTo(const QRectF &rect);

Q_SIGNALS:
    void zoomChanged(qreal zoom);
    void pointerMoved(const QPointF &position);

protected:
    void wheelEvent(QWheelEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    void setZoom(qreal zoom);

    Drawing &m_drawing;
};

} // namespace Sketchpad
