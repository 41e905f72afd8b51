// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "drawing/Canvas.h"

#include "drawing/Drawing.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <QtMath>

namespace Sketchpad {

namespace {

constexpr qreal smallest = 0.1;
constexpr qreal largest = 16.0;
constexpr qreal step = 1.25;
constexpr qreal marginToFit = 20.0;
// What a wheel reports for one notch, in eighths of a degree.
constexpr qreal wheelNotch = 120.0;

} // namespace

Canvas::Canvas(Drawing &drawing, QWidget *parent)
    : QGraphicsView(&drawing, parent)
    , m_drawing(drawing)
{
    setRenderHint(QPainter::Antialiasing);
    setTransformationAnchor(QGraphicsView::AnchorUnderMouse);
    setResizeAnchor(QGraphicsView::AnchorViewCenter);
    setViewportUpdateMode(QGraphicsView::FullViewportUpdate);
    setFrameShape(QFrame::NoFrame);
    setMouseTracking(true);
}

qreal Canvas::zoom() const
{
    return transform().m11();
}

void Canvas::setZoom(qreal zoom)
{
    const qreal bounded = qBound(smallest, zoom, largest);
    setTransform(QTransform::fromScale(bounded, bounded));
    Q_EMIT zoomChanged(bounded);
}

void Canvas::zoomIn()
{
    setZoom(zoom() * step);
}

void Canvas::zoomOut()
{
    setZoom(zoom() / step);
}

void Canvas::zoomToActualSize()
{
    setZoom(1.0);
}

void Canvas::zoomToFit()
{
    const QRectF drawn = m_drawing.itemsBoundingRect();
    zoomTo(drawn.isEmpty() ? m_drawing.sheet() : drawn);
}

void Canvas::zoomTo(const QRectF &rect)
{
    fitInView(
        rect.adjusted(-marginToFit, -marginToFit, marginToFit, marginToFit), Qt::KeepAspectRatio);
    setZoom(zoom());
    centerOn(rect.center());
}

void Canvas::wheelEvent(QWheelEvent *event)
{
    if (event->modifiers() & Qt::ControlModifier)
        setZoom(zoom() * qPow(step, event->angleDelta().y() / wheelNotch));
    else
        QGraphicsView::wheelEvent(event);
}

void Canvas::mouseMoveEvent(QMouseEvent *event)
{
    QGraphicsView::mouseMoveEvent(event);
    Q_EMIT pointerMoved(mapToScene(event->pos()));
}

} // namespace Sketchpad
