// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "recorder/ClipOverlay.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

namespace Sketchpad {

namespace {

const QColor accent(0x2f, 0x7d, 0xe1);
const QColor ink(0x1f, 0x28, 0x33);

const double largestGlow = 13; // pixels
const double glowPerPicture = 0.10; // gone a third of a second after the release

// The arrow of the pictures in the hints, one unit a pixel, with its tip at the origin.
QPolygonF arrow()
{
    return QVector<QPointF>{ { 0, 0 }, { 0, 16 }, { 3.8, 12.5 }, { 6.4, 18.4 }, { 8.9, 17.3 },
        { 6.4, 11.5 }, { 11.5, 11.3 } };
}

void paintPointer(QPainter &painter, const QPointF &pointer)
{
    painter.setPen(QPen(ink, 1.3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::white);
    painter.drawPolygon(arrow().translated(pointer));
}

void paintKeys(QPainter &painter, const QRectF &picture, const QStringList &keys)
{
    const double left = 80; // on the sheet, beside the bar of the tools
    const double margin = 10;
    const double height = 24;
    QFont font = QGuiApplication::font();
    font.setPixelSize(13);
    font.setBold(true);
    painter.setFont(font);
    double x = left;
    for (const QString &key : keys) {
        const double width = qMax(height, QFontMetricsF(font).horizontalAdvance(key) + 16);
        const QRectF cap(x, picture.top() + margin, width, height);
        painter.setPen(QPen(ink, 1.2));
        painter.setBrush(Qt::white);
        painter.drawRoundedRect(cap, 5, 5);
        painter.drawText(cap, Qt::AlignCenter, key);
        x += width + margin / 2;
    }
}

} // namespace

void ClipOverlay::paintButton(QPainter &painter, const QPointF &pointer, bool isPressed)
{
    m_glow = isPressed ? 1 : qMax(0.0, m_glow - glowPerPicture);
    // Released, the ring widens while it fades.
    const double radius = largestGlow * (isPressed ? 1.0 : 1.7 - 0.7 * m_glow);
    painter.setOpacity(m_glow);
    painter.setPen(QPen(accent, 2));
    painter.setBrush(QColor(accent.red(), accent.green(), accent.blue(), isPressed ? 70 : 0));
    painter.drawEllipse(pointer, radius, radius);
    painter.setOpacity(1);
}

void ClipOverlay::paint(
    QImage &picture, const QPointF &pointer, bool isPressed, const QStringList &keys)
{
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    paintButton(painter, pointer, isPressed);
    paintPointer(painter, pointer);
    paintKeys(painter, picture.rect(), keys);
}

} // namespace Sketchpad
