// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "window/ColorButton.h"

#include <QColorDialog>
#include <QPainter>

namespace Sketchpad {

namespace {

QIcon swatch(const QColor &color)
{
    QPixmap pixmap(24, 24);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(128, 128, 128));
    painter.setBrush(color);
    painter.drawRoundedRect(QRectF(2.5, 2.5, 19, 19), 4, 4);
    return QIcon(pixmap);
}

} // namespace

ColorButton::ColorButton(const QString &title, const QColor &color, QWidget *parent)
    : QToolButton(parent)
    , m_title(title)
{
    setAutoRaise(true);
    setIconSize({ 24, 24 });
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setColor(color);
    connect(this, &QToolButton::clicked, this, &ColorButton::choose);
}

void ColorButton::setColor(const QColor &color)
{
    m_color = color;
    setIcon(swatch(color));
    Q_EMIT colorChanged(color);
}

void ColorButton::choose()
{
    const QColor chosen
        = QColorDialog::getColor(m_color, this, m_title, QColorDialog::ShowAlphaChannel);
    if (chosen.isValid())
        setColor(chosen);
}

} // namespace Sketchpad
