// SPDX-FileCopyrightText: 2026 The Hintreels authors
// SPDX-License-Identifier: MIT

#include "ui/items/HRStyledRectangleComponent.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QToolTip>

namespace Hintreels {

namespace {

const QLatin1String widgetName("PE_Widget");
const QLatin1String frameName("PE_Frame");

} // namespace

struct HRStyledRectangleComponentPrivate
{
    QString element = widgetName;
    bool toolTipStyle = false;
};

HRStyledRectangleComponent::HRStyledRectangleComponent(QQuickPaintedItem *parent)
    : QQuickPaintedItem(parent)
    , d(std::make_unique<HRStyledRectangleComponentPrivate>())
{
    setFlag(ItemHasContents);
    connect(qGuiApp, &QGuiApplication::paletteChanged, this,
        &HRStyledRectangleComponent::followPalette);
}

HRStyledRectangleComponent::~HRStyledRectangleComponent() = default;

QString HRStyledRectangleComponent::element() const
{
    return d->element;
}

void HRStyledRectangleComponent::setElement(const QString &element)
{
    if (element != widgetName && element != frameName)
        return;
    d->element = element;
    Q_EMIT elementChanged();
}

QColor HRStyledRectangleComponent::textColor() const
{
    if (d->toolTipStyle)
        return Qt::black;
    return QGuiApplication::palette().color(QPalette::Active, QPalette::WindowText);
}

bool HRStyledRectangleComponent::toolTipStyle() const
{
    return d->toolTipStyle;
}

void HRStyledRectangleComponent::setToolTipStyle(bool toolTipStyle)
{
    d->toolTipStyle = toolTipStyle;
    Q_EMIT toolTipStyleChanged();
    Q_EMIT textColorChanged();
    update();
}

void HRStyledRectangleComponent::paint(QPainter *painter)
{
    // The pen is left alone in both cases.
    if (d->toolTipStyle) {
        painter->setBrush(QToolTip::palette().toolTipBase());
        painter->drawRect(boundingRect().toRect());
        return;
    }
    const QPalette palette = QGuiApplication::palette();
    painter->setBrush(QBrush(palette.color(QPalette::Active, QPalette::Window), Qt::SolidPattern));
    painter->drawRect(boundingRect().adjusted(-1, -1, 1, 1));
}

void HRStyledRectangleComponent::followPalette()
{
    Q_EMIT textColorChanged();
    update();
}

} // namespace Hintreels
