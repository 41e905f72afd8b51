// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "window/Icons.h"

#include <QFile>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

namespace Sketchpad {

namespace {

void addPixmaps(QIcon &icon, QIcon::Mode mode, QByteArray svg, const QColor &color)
{
    QSvgRenderer renderer(svg.replace("currentColor", color.name().toLatin1()));
    for (int size : { 16, 24, 32, 48 }) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        renderer.render(&painter);
        painter.end();
        icon.addPixmap(pixmap, mode);
    }
}

} // namespace

QIcon themedIcon(const QString &name, const QPalette &palette)
{
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray svg = file.readAll();
    QIcon icon;
    addPixmaps(icon, QIcon::Normal, svg, palette.color(QPalette::ButtonText));
    addPixmaps(icon, QIcon::Disabled, svg, palette.color(QPalette::Disabled, QPalette::ButtonText));
    return icon;
}

} // namespace Sketchpad
